#include "notch/NotchViewModel.h"

#include "platform/UserDefaults.h"

namespace brimlight {
namespace {

QString onboardingKey()
{
    return QStringLiteral("brimlight.onboardingCompleted");
}

} // namespace

NotchViewModel::NotchViewModel(UserDefaults &defaults, QObject *parent)
    : GridViewState(parent)
    , m_defaults(defaults)
    , m_onboardingCompleted(defaults.read<bool>(onboardingKey()).value_or(false))
{
}

void NotchViewModel::setExpanded(bool value)
{
    m_isExpanded = value;
    Q_EMIT isExpandedChanged();
}

void NotchViewModel::setPinned(bool value)
{
    m_isPinned = value;
    Q_EMIT isPinnedChanged();
}

void NotchViewModel::setCurrentPage(int value)
{
    m_currentPage = value;
    Q_EMIT currentPageChanged();
}

void NotchViewModel::setGeometry(const NotchGeometry &value)
{
    m_geometry = value;
    Q_EMIT geometryChanged();
}

void NotchViewModel::setShowSettings(bool value)
{
    m_showSettings = value;
    Q_EMIT showSettingsChanged();
}

void NotchViewModel::setHudType(const std::optional<HUDType> &value)
{
    m_hudType = value;
    Q_EMIT hudTypeChanged();
}

void NotchViewModel::setOnboardingCompleted(bool value)
{
    m_onboardingCompleted = value;
    m_defaults.setValue(onboardingKey(), value);
    Q_EMIT onboardingCompletedChanged();
}

} // namespace brimlight
