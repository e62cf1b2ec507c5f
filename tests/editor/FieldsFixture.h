#pragma once

#include "editor/CustomFieldsModifyDlg.h"

#include "EditorTools.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QSignalSpy>
#include <QTableWidget>

// What the tests of the custom fields dialog share.

inline const QString TakenAlert = QStringLiteral("custom field name has exist");
inline const QString FullAlert = QStringLiteral("the maximum number of custom fields has been reached");

class FieldsFixture
{
protected:
    void prepare()
    {
        using qarn_worker::SystemAssistant;
        m_store = std::make_unique<TestStore>();
        m_alerts =
            std::make_unique<QSignalSpy>(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    }

    void close()
    {
        QCOMPARE(m_modal.pending(), 0);
        m_dialog.reset();
        m_store.reset();
    }

    void open(const QStringList& fields)
    {
        qarn_data::PersonData::instance().resetCustomFields(fields);
        m_dialog = std::make_unique<qarn_personMgr::CustomFieldsModifyDlg>(nullptr);
        m_table = child<QTableWidget>(m_dialog.get(), "tableWidget");
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    QStringList names() const
    {
        QStringList texts;
        for (int row = 0; row < m_table->rowCount(); ++row)
            texts.append(m_table->item(row, 0)->text());
        return texts;
    }

    QLineEdit* editor() const
    {
        for (int row = 0; row < m_table->rowCount(); ++row) {
            if (auto* lineEdit = qobject_cast<QLineEdit*>(m_table->cellWidget(row, 0)))
                return lineEdit;
        }
        return nullptr;
    }

    QLineEdit* edit(int row)
    {
        press(row, "editBt");
        QLineEdit* lineEdit = editor();
        if (lineEdit == nullptr)
            qFatal("no editor");
        lineEdit->selectAll();
        return lineEdit;
    }

    QStringList alerts() const
    {
        QCoreApplication::processEvents();
        QStringList texts;
        for (const QList<QVariant>& alert : *m_alerts)
            texts.append(alert.at(1).toString());
        return texts;
    }

    void press(int row, const char* button) { click(m_table->cellWidget(row, 1), button); }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<qarn_personMgr::CustomFieldsModifyDlg> m_dialog;
    std::unique_ptr<QSignalSpy> m_alerts;
    ModalDriver m_modal;
    QTableWidget* m_table = nullptr;
};
