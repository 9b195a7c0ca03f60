#include "notch/OnboardingSteps.h"

#include <array>

namespace brimlight {
namespace {

struct Step
{
    const char16_t *icon;
    const char16_t *title;
    const char16_t *description;
};

constexpr std::array steps{
    Step{u"sparkles", u"Welcome to Brimlight!",
         u"Your camera notch is now a powerful, liquid-glass workspace. Hover to peek, tap to pin, and "
         u"access tools "
         u"instantly."},
    Step{u"square.grid.2x2", u"Customize Your Grid",
         u"Tap the '+' icon to browse the gallery. Drag widgets to snap them, and right-click to resize or "
         u"remove."},
    Step{u"paperplane", u"Pages & Navigation",
         u"Pagination controls sit right next to the title. Switch pages or add new ones to organize your "
         u"tasks."},
    Step{u"gearshape.fill", u"Settings & Custom Themes",
         u"Customize presets, colors, and update settings inline. Everything adjusts to fit your personal "
         u"workflow."},
};

} // namespace

int OnboardingSteps::count()
{
    return static_cast<int>(steps.size());
}

QString OnboardingSteps::icon() const
{
    return QString::fromUtf16(steps[static_cast<size_t>(m_current)].icon);
}

QString OnboardingSteps::title() const
{
    return QString::fromUtf16(steps[static_cast<size_t>(m_current)].title);
}

QString OnboardingSteps::description() const
{
    return QString::fromUtf16(steps[static_cast<size_t>(m_current)].description);
}

void OnboardingSteps::next()
{
    if (isLast())
        return;
    ++m_current;
    Q_EMIT currentChanged();
}

void OnboardingSteps::back()
{
    if (!hasBack())
        return;
    --m_current;
    Q_EMIT currentChanged();
}

} // namespace brimlight
