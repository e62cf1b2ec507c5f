#include "OperBt.h"

namespace qarn_base
{

namespace
{

constexpr int Side = 18; ///< pixels, as the buttons in the persons' rows

QString imageName(OperBt::Kind kind)
{
    switch (kind) {
    case OperBt::Kind::Add:
        return QStringLiteral("add");
    case OperBt::Kind::Edit:
        return QStringLiteral("edit");
    case OperBt::Kind::Delete:
        break;
    }
    return QStringLiteral("delete");
}

} // namespace

OperBt::OperBt(Kind kind, QWidget* parent) : IconButton(parent)
{
    const QString name = imageName(kind);
    setObjectName(name + QStringLiteral("Bt"));
    setIcons(QStringLiteral(":/images/images/%1_n.png").arg(name),
             QStringLiteral(":/images/images/%1_h.png").arg(name));
    setIconSize(QSize(Side, Side));
    setFixedSize(Side, Side);
    setFlat(true);
    setMouseTracking(true); // so that moves over it reach the row
    setToolTip(kind == Kind::Add ? tr("add") : kind == Kind::Edit ? tr("edit") : tr("delete"));
    setAccessibleName(toolTip());
    setStyleSheet(QStringLiteral(
        "QPushButton{border:1px solid transparent;background:transparent;padding:0px;min-width:0px;}"
        "QPushButton:focus{border-color:#2c7dce;border-radius:2px;}"));
}

} // namespace qarn_base
