#pragma once

#include "table/PersonInfoWt.h"

#include "TestPersons.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

#include <QLabel>
#include <QPointer>
#include <QtTest>

/// One row, of person "1" ("Ada") of the root, in a window over a store of its own. The mouse rests above it.
class RowFixture
{
public:
    RowFixture()
    {
        root = qarn_data::PersonData::instance().getRootOrganizationId();
        window.resize(1000, 400);
        row = new qarn_personMgr::PersonInfoWt(makePerson("1", "Ada", root), &window);
        row->setGeometry(0, 200, 1000, 138);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseMove(&window, QPoint(500, 50));
        QTRY_COMPARE(background(), normal);
    }

    template <class T>
    T* child(const char* name) const
    {
        return row->findChild<T*>(QLatin1String(name));
    }
    QString text(const char* name) const { return child<QLabel>(name)->text(); }
    QString background() const { return row->styleSheet().section(QLatin1Char(';'), 0, 0); }

    const QString normal = QStringLiteral("QWidget{background-color:#0b121e");
    const QString hovered = QStringLiteral("QWidget{background-color:#213147");
    const QString selected = QStringLiteral("QWidget{background-color:#293a56");

    TestStore store;
    QWidget window;
    QPointer<qarn_personMgr::PersonInfoWt> row;
    QString root;
};
