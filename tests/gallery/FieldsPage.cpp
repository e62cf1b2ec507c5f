#include "Pages.h"

#include <XCOMMON/XLineEdit.h>
#include <qarn_base/ComboBox.h>
#include <qarn_base/DatetimeSpanSelWt.h>
#include <qarn_base/SearchBox.h>
#include <qarn_base/SelDirLineEt.h>
#include <qarn_base/TimeSpaceLineEt.h>

#include <QDateTimeEdit>
#include <QFormLayout>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace
{

const QDateTime start(QDate(2024, 3, 1), QTime(8, 0));
const QDateTime end(QDate(2024, 4, 1), QTime(8, 0));

XCOMMON::XLineEdit* makeEdit(const QString& text)
{
    auto* edit = new XCOMMON::XLineEdit;
    edit->setText(text);
    return edit;
}

qarn_base::ComboBox* makeCombo()
{
    auto* combo = new qarn_base::ComboBox;
    combo->setObjectName(QStringLiteral("galleryCombo"));
    combo->addItems(
        {QStringLiteral("Valid And Invalid"), QStringLiteral("Invalid"), QStringLiteral("Valid")});
    return combo;
}

void add(QFormLayout* form, const char* name, QWidget* field, bool enabled = true)
{
    field->setEnabled(enabled);
    if (field->sizeHint().height() < 60)
        field->setFixedHeight(28);
    field->setFixedWidth(230);
    form->addRow(QLatin1String(name), field);
}

QFormLayout* makeEdits()
{
    auto* form = new QFormLayout;
    form->setVerticalSpacing(14);
    add(form, "text", makeEdit(QStringLiteral("Anna Schmidt")));
    auto* empty = makeEdit(QString());
    empty->setPlaceholderText(QStringLiteral("Please input name..."));
    add(form, "placeholder", empty);
    auto* readOnly = makeEdit(QStringLiteral("4711"));
    readOnly->setReadOnly(true);
    add(form, "read-only", readOnly);
    add(form, "disabled", makeEdit(QStringLiteral("4711")), false);
    auto* invalid = makeEdit(QStringLiteral("taken"));
    invalid->setProperty("invalid", true);
    add(form, "refused", invalid);
    auto* focused = makeEdit(QString::fromUtf8("王小明"));
    focused->setObjectName(QStringLiteral("focusedEdit"));
    add(form, "focus", focused);
    auto* clearable = makeEdit(QStringLiteral("can be cleared"));
    clearable->setClearButtonEnabled(true);
    add(form, "with a clear button", clearable);
    add(form, "SearchBox", new qarn_base::SearchBox);
    auto* directory = new qarn_base::SelDirLineEt;
    directory->setText(QStringLiteral("/home/anna/Desktop/a directory with a long name"));
    add(form, "SelDirLineEt", directory);
    auto* span = new qarn_base::TimeSpaceLineEt;
    span->setUsingYearInTimeSpaceDescription(true);
    span->setDateTimeSpace(start, end);
    add(form, "TimeSpaceLineEt", span);
    span->setFixedWidth(295);
    return form;
}

QFormLayout* makeOthers()
{
    auto* form = new QFormLayout;
    form->setVerticalSpacing(14);
    add(form, "ComboBox", makeCombo());
    add(form, "disabled", makeCombo(), false);
    auto* editable = makeCombo();
    editable->setEditable(true);
    add(form, "editable", editable);
    auto* number = new QSpinBox;
    number->setRange(1, 100);
    number->setValue(42);
    add(form, "spin box", number);
    auto* lowest = new QSpinBox;
    add(form, "at its lowest", lowest);
    add(form, "disabled", new QSpinBox, false);
    add(form, "date and time", new QDateTimeEdit(start));
    auto* date = new QDateEdit(start.date());
    date->setObjectName(QStringLiteral("galleryDate"));
    date->setCalendarPopup(true);
    add(form, "with calendar", date);
    auto* text = new QPlainTextEdit(QStringLiteral("several\nlines\nof\ntext\nand more\nthan fit"));
    text->setFixedHeight(70);
    add(form, "text", text);
    return form;
}

} // namespace

QWidget* makeFieldsPage()
{
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(30, 30, 30, 30);
    columns->setSpacing(30);
    columns->addLayout(makeEdits());
    auto* right = new QVBoxLayout;
    right->addLayout(makeOthers());
    auto* span = new qarn_base::DatetimeSpanSelWt(nullptr, false);
    span->setInitDateTime(start, end);
    right->addWidget(span);
    right->addStretch();
    columns->addLayout(right);
    columns->addStretch();
    return page;
}
