#pragma once

#include <qarn_base/Export.h>

#include <QWidget>
#include <memory>

namespace qarn_base
{

/// Paging bar: "firstBt", "prevBt", "curPage", "pageCount", "nextBt", "lastBt", "pageSize" (20, 50, 100,
/// 200) and "totalCnt". Shows what updateTotalCnt() says and only asks for another page by its signals.
class QARN_BASE_EXPORT PageEditWt : public QWidget
{
    Q_OBJECT
public:
    explicit PageEditWt(QWidget* parent = nullptr);
    ~PageEditWt() override;

    int getPageSize() const;   ///< rows a page; 50 at first
    int getCurPageNum() const; ///< counted from 1; 0 when there is no page
    void updateTotalCnt(int totalCnt, int curPage);

signals:
    void signalGotoPage(int page, int pageSize);
    void signalPageSizeChanged(int pageSize);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qarn_base
