#include <qarn_base/BaseForm.h>

#include <QtTest>

using qarn_base::BaseForm;

class PersonPage : public BaseForm
{
public:
    using BaseForm::BaseForm;
    int formType() const override { return 15; }
};

class tst_BaseForm : public QObject
{
    Q_OBJECT
private slots:
    void tellsItsKind();
    void belongsToItsParent();
};

void tst_BaseForm::tellsItsKind()
{
    const PersonPage page;
    const BaseForm& form = page;
    QCOMPARE(form.formType(), 15);
    QCOMPARE(BaseForm().formType(), 0);
}

void tst_BaseForm::belongsToItsParent()
{
    QWidget window;
    QCOMPARE((new BaseForm(&window))->parentWidget(), &window);
}

QTEST_MAIN(tst_BaseForm)
#include "tst_BaseForm.moc"
