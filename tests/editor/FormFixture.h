#pragma once

#include "editor/PersonInfoModifyWt.h"

#include "EditorTools.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

#include <QScrollArea>
#include <QToolTip>
#include <QVBoxLayout>

// What the tests of the person editor's form share.

inline const QStringList Fields{"Zone", "Badge", "Floor"};
inline constexpr int CustomHeight = 25 + 3 * 28 + 2 * 10;
inline constexpr int ExtraHeight = 273;

inline qarn_data::PersonInfo stored()
{
    qarn_data::PersonInfo person;
    person.id = "{known}";
    person.organizationId = "{sales}";
    person.name = "Ann";
    person.serialNum = "A1";
    person.sex = 2;
    person.email = "ann@example.org";
    person.phoneNum = "0123";
    person.remarks = "early shift";
    person.validStartTime = QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5, 678));
    person.validEndTime = QDateTime(QDate(2025, 6, 7), QTime(8, 9, 10));
    person.identityId = "P77";
    person.job = "Clerk";
    person.address = "Main Street";
    person.birthDate = QDate(1990, 1, 1);
    person.employDate = QDate(2015, 5, 5);
    person.identityType = 4;
    person.customFields = {{"Zone", "North"}, {"Badge", "7"}};
    return person;
}

/// The form in a scroll area of the dialog's size, on a store with three custom fields.
class FormFixture
{
protected:
    void open()
    {
        m_store = std::make_unique<TestStore>();
        qarn_data::PersonData::instance().resetCustomFields(Fields);
        m_window = std::make_unique<QWidget>();
        m_area = new QScrollArea;
        m_area->setFrameShape(QFrame::NoFrame);
        m_area->setWidgetResizable(true);
        m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        auto* layout = new QVBoxLayout(m_window.get());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_area);
        m_form = new qarn_personMgr::PersonInfoModifyWt(m_area);
        m_area->setWidget(m_form);
        m_form->setPersonInfo(qarn_data::PersonInfo());
        m_window->resize(731, 470);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void close()
    {
        QToolTip::hideText();
        m_window.reset();
        m_store.reset();
    }

    void toggle(const char* button) { click(m_form, button); }
    QLineEdit* line(const char* name) { return child<QLineEdit>(m_form, name); }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QWidget> m_window;
    QScrollArea* m_area = nullptr;
    qarn_personMgr::PersonInfoModifyWt* m_form = nullptr;
};
