#pragma once

#include <QLabel>

namespace qarn_base
{

/// Text under a field that tells why the input was refused. Keeps its room while it is empty, so that
/// nothing jumps.
class ReasonLabel : public QLabel
{
    Q_OBJECT
public:
    ReasonLabel(int lines, QWidget* parent);

    void showReason(const QString& reason);
    void hideReason();
};

} // namespace qarn_base
