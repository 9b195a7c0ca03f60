#include "theme/Motion.h"

#include "platform/Appearance.h"

#include <QQmlEngine>

namespace brimlight {
namespace {

constexpr const char *installedProperty = "brimlightMotion";

QEasingCurve bezier(QPointF first, QPointF second)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(first, second, {1, 1});
    return curve;
}

MotionCurve spring(double response, double dampingFraction)
{
    const Spring spring(std::chrono::duration<double>(response), dampingFraction);
    return {static_cast<int>(spring.settlingTime().count()), spring.easing()};
}

MotionCurve easedOut(int milliseconds)
{
    return {milliseconds, bezier({0, 0}, {0.58, 1})};
}

MotionCurve toAndFro(int milliseconds)
{
    return {milliseconds, Motion::easeInOut()};
}

} // namespace

Motion::Motion(Appearance *appearance, QObject *parent)
    : QObject(parent)
    , m_appearance(appearance)
{
    if (!m_appearance)
        return;
    readAppearance();
    m_appearance->observeChanges([this] {
        readAppearance();
        Q_EMIT changed();
    });
}

Motion::~Motion()
{
    if (m_appearance)
        m_appearance->observeChanges({});
}

void Motion::installOn(QQmlEngine &engine)
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    engine.setProperty(installedProperty, QVariant::fromValue(this));
}

Motion *Motion::create(QQmlEngine *engine, QJSEngine *)
{
    if (auto *installed = engine->property(installedProperty).value<Motion *>())
        return installed;
    return new Motion(nullptr, engine);
}

const QEasingCurve &Motion::easeInOut()
{
    static const QEasingCurve curve = bezier({0.42, 0}, {0.58, 1});
    return curve;
}

MotionCurve Motion::curve(Name name) const
{
    std::optional<MotionCurve> &known = m_curves.at(static_cast<size_t>(name));
    if (!known)
        known = compute(name);
    return m_reduced ? MotionCurve{0, known->easing} : *known;
}

MotionCurve Motion::compute(Name name)
{
    switch (name) {
    case Name::panel:
        return {static_cast<int>(panelSpring.settlingTime().count()), panelSpring.easing()};
    case Name::hover:
        return spring(0.24, 0.82);
    case Name::headerHover:
        return spring(0.2, 0.7);
    case Name::cardHover:
        return spring(0.24, 0.78);
    case Name::press:
        return spring(0.25, 0.6);
    case Name::selection:
        return spring(0.25, 0.8);
    case Name::flip:
        return spring(0.55, 0.65);
    case Name::layout:
        return spring(0.3, 0.84);
    case Name::entrance:
        return spring(0.35, 0.7);
    case Name::dots:
        return spring(0.3, 0.7);
    case Name::onboarding:
        return spring(0.3, 0.8);
    case Name::hud:
        return spring(0.25, 0.8);
    case Name::rolling:
        return spring(0.35, 0.85);
    case Name::quickFade:
        return easedOut(120);
    case Name::fade:
        return easedOut(180);
    case Name::hudFade:
        return easedOut(200);
    case Name::change:
        return easedOut(250);
    case Name::charging:
        return toAndFro(900);
    case Name::count:
        break;
    }
    return {};
}

void Motion::readAppearance()
{
    m_reduced = m_appearance->reducesMotion();
    m_opaque = m_appearance->reducesTransparency();
}

} // namespace brimlight
