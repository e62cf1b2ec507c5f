#include "entry/PersonMgrInit.h"

#include "TestPersons.h"
#include "TestStore.h"

#include <qarn_base/BaseForm.h>
#include <qarn_base/PageEditWt.h>
#include <qarn_base/PersonTree.h>
#include <qarn_base/TreeItem.h>
#include <qarn_data/PersonData.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QtTest>
#include <memory>

using qarn_base::BaseForm;
using qarn_data::PersonData;
using qarn_personMgr::PersonMgrInit;

/// The module as the host sees it: by its library and its one header.
class tst_PersonMgrInit : public QObject
{
    Q_OBJECT
private slots:
    void isOneObject();
    void declaresNothingItself();
    void makesPagesForTheHost();
    void leavesAnOpenPageAlone();
    void doesNothingWhenTheHostStarts();
};

void tst_PersonMgrInit::isOneObject()
{
    QCOMPARE(&PersonMgrInit::instance(), &PersonMgrInit::instance());
    QVERIFY(PersonMgrInit::instance().parent() == nullptr);
    QVERIFY(qobject_cast<qarn_base::ModuleInitialization*>(&PersonMgrInit::instance()) != nullptr);
}

void tst_PersonMgrInit::declaresNothingItself()
{
    const QMetaObject& meta = PersonMgrInit::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("qarn_personMgr::PersonMgrInit"));
    QCOMPARE(meta.methodOffset(), meta.methodCount());
    QCOMPARE(meta.propertyOffset(), meta.propertyCount());
}

void tst_PersonMgrInit::makesPagesForTheHost()
{
    TestStore store;
    const std::unique_ptr<BaseForm> first(PersonMgrInit::instance().createPersonMgrForm());
    const std::unique_ptr<BaseForm> second(PersonMgrInit::instance().createPersonMgrForm());
    QVERIFY(first != nullptr && second != nullptr && first != second);
    QVERIFY(first->parent() == nullptr);
    QCOMPARE(first->formType(), 15);
    QCOMPARE(QByteArray(first->metaObject()->className()), QByteArray("qarn_personMgr::PersonMgrForm"));
}

void tst_PersonMgrInit::leavesAnOpenPageAlone()
{
    TestStore store;
    const QString root = PersonData::instance().getRootOrganizationId();
    QVERIFY(PersonData::instance().addOrganization({"east", root, "East"}));
    QVERIFY(PersonData::instance().addPersons(makePersons(120, "east")));
    const std::unique_ptr<BaseForm> form(PersonMgrInit::instance().createPersonMgrForm());
    form->resize(1280, 720);
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    auto* tree = form->findChild<qarn_base::PersonTree*>("treeWidget");
    tree->setCurSelItem(tree->getOrganizationItem("east"));
    QTest::keyClicks(form->findChild<QLineEdit*>("name"), "Person");
    QTest::mouseClick(form->findChild<QAbstractButton*>("nextBt"), Qt::LeftButton);
    auto* pages = form->findChild<qarn_base::PageEditWt*>("pageIndexWt");
    QCOMPARE(pages->getCurPageNum(), 2);
    const QImage before = form->grab().toImage();

    PersonMgrInit::instance().recoveryToInitialState();
    QCOMPARE(tree->getCurSelOrganizationId(), QStringLiteral("east"));
    QCOMPARE(pages->getCurPageNum(), 2);
    QCOMPARE(form->findChild<QLineEdit*>("name")->text(), QStringLiteral("Person"));
    QCOMPARE(form->grab().toImage(), before);
}

void tst_PersonMgrInit::doesNothingWhenTheHostStarts()
{
    const int widgets = QApplication::allWidgets().count();
    PersonMgrInit::instance().moduleInit();
    QCOMPARE(QApplication::allWidgets().count(), widgets);
}

QTEST_MAIN(tst_PersonMgrInit)
#include "tst_PersonMgrInit.moc"
