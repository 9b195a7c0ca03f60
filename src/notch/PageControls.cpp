#include "notch/PageControls.h"

#include "grid/GridStore.h"
#include "notch/NotchViewModel.h"

#include <algorithm>
#include <limits>

namespace brimlight {

PageControls::PageControls(GridStore &grid, NotchViewModel &viewModel, QObject *parent)
    : QObject(parent)
    , m_grid(grid)
    , m_viewModel(viewModel)
{
    connect(&grid, &GridStore::layoutChanged, this, &PageControls::changed);
    connect(&viewModel, &NotchViewModel::currentPageChanged, this, &PageControls::changed);
}

int PageControls::first() const
{
    const qint64 last = std::max<qint64>(pages() - maximumShown, 0);
    return static_cast<int>(std::clamp<qint64>(m_viewModel.currentPage() - maximumShown / 2, 0, last));
}

int PageControls::shown() const
{
    return static_cast<int>(std::min<qint64>(pages(), maximumShown));
}

void PageControls::addPage()
{
    const qint64 page = m_grid.addPage();
    m_viewModel.setCurrentPage(static_cast<int>(std::min<qint64>(page, std::numeric_limits<int>::max() - 1)));
}

qint64 PageControls::pages() const
{
    // The pages that can be shown are counted in an int.
    return std::clamp<qint64>(m_grid.layout().pageCount, 1, std::numeric_limits<int>::max());
}

} // namespace brimlight
