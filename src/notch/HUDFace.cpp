#include "notch/HUDFace.h"

#include "notch/NotchViewModel.h"

namespace brimlight {

HUDFace::HUDFace(const NotchViewModel &viewModel, QObject *parent)
    : QObject(parent)
    , m_viewModel(viewModel)
{
    connect(&viewModel, &NotchViewModel::hudTypeChanged, this, &HUDFace::take);
    connect(&viewModel, &NotchViewModel::isExpandedChanged, this, &HUDFace::changed);
}

bool HUDFace::isShown() const
{
    return m_viewModel.hudType() && !m_viewModel.isExpanded();
}

void HUDFace::take()
{
    m_type = m_viewModel.hudType().value_or(m_type);
    Q_EMIT changed();
}

} // namespace brimlight
