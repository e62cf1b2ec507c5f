#pragma once

#include <memory>

namespace qarn_personMgr
{
class PersonMgrForm;
}

namespace qarn_bench
{

/// The persons page over the open store, in a window of 1280x760 with the client's look.
class PageWindow
{
public:
    PageWindow();
    ~PageWindow();

    qarn_personMgr::PersonMgrForm& form() { return *m_form; }
    void setPageSize(int size);
    void click(const char* button); ///< of the paging bar; returns when the page is painted
    void resize(int width, int height);

private:
    void paint();

    std::unique_ptr<qarn_personMgr::PersonMgrForm> m_form;
};

} // namespace qarn_bench
