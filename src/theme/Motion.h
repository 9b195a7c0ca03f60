#pragma once

#include "theme/Spring.h"

#include <QEasingCurve>
#include <QObject>
#include <QtQmlIntegration>

#include <array>
#include <optional>

class QJSEngine;
class QQmlEngine;

namespace brimlight {

class Appearance;

/// One movement: what an animation needs to be told. Views hand it over whole, `MotionAnimation { movement:
/// Motion.hover }`.
struct MotionCurve
{
    Q_GADGET
    QML_VALUE_TYPE(motion)
    Q_PROPERTY(int duration MEMBER duration)
    Q_PROPERTY(QEasingCurve easing MEMBER easing)

public:
    /// In milliseconds; 0 means that the goal is reached at once.
    int duration = 0;
    QEasingCurve easing;

    bool operator==(const MotionCurve &) const = default;
};

/// The one place for durations and easings. Every movement of the program has a name here, and all of them
/// take no time while the user wants less motion. In QML it is the singleton `Motion` of the engine that it
/// was installed on.
class Motion : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool reduced READ isReduced NOTIFY changed)
    Q_PROPERTY(bool opaque READ isOpaque NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve panel READ panel NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve hover READ hover NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve headerHover READ headerHover NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve cardHover READ cardHover NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve press READ press NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve selection READ selection NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve flip READ flip NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve layout READ layout NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve entrance READ entrance NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve dots READ dots NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve onboarding READ onboarding NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve hud READ hud NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve rolling READ rolling NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve quickFade READ quickFade NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve fade READ fade NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve hudFade READ hudFade NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve change READ change NOTIFY changed)
    Q_PROPERTY(brimlight::MotionCurve charging READ charging NOTIFY changed)
    Q_PROPERTY(int stagger READ stagger NOTIFY changed)
    Q_PROPERTY(int tipDelay READ tipDelay CONSTANT)
    Q_PROPERTY(int spinnerStep READ spinnerStep CONSTANT)

public:
    /// The spring of the panel, for who follows it step by step.
    static constexpr Spring panelSpring{std::chrono::duration<double>(0.34), 0.85};

    /// Without an appearance nothing is reduced. It is borrowed and observed. There is no constructor without
    /// arguments, since QML would prefer it to `create`.
    explicit Motion(Appearance *appearance, QObject *parent = nullptr);
    ~Motion() override;

    /// Makes this object the singleton of the engine; before QML first names it.
    void installOn(QQmlEngine &engine);
    /// What was installed, else one of the engine's own that reduces nothing.
    static Motion *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /// The user wants less motion: every duration is 0, and what moves for ever stands still.
    bool isReduced() const { return m_reduced; }
    /// The user wants no transparency.
    bool isOpaque() const { return m_opaque; }

    /// Springs, with response and damping fraction.
    MotionCurve panel() const { return curve(Name::panel); }             ///< 0.34 0.85, panel and gallery
    MotionCurve hover() const { return curve(Name::hover); }             ///< 0.24 0.82, a tile
    MotionCurve headerHover() const { return curve(Name::headerHover); } ///< 0.2 0.7, a header button
    MotionCurve cardHover() const { return curve(Name::cardHover); }     ///< 0.24 0.78, a gallery card
    MotionCurve press() const { return curve(Name::press); }             ///< 0.25 0.6
    MotionCurve selection() const { return curve(Name::selection); }     ///< 0.25 0.8, mark of what is chosen
    MotionCurve flip() const { return curve(Name::flip); }               ///< 0.55 0.65, a tile turning over
    MotionCurve layout() const { return curve(Name::layout); }           ///< 0.3 0.84, tiles changing places
    MotionCurve entrance() const { return curve(Name::entrance); }       ///< 0.35 0.7, tiles coming in
    MotionCurve dots() const { return curve(Name::dots); }               ///< 0.3 0.7, page dots
    MotionCurve onboarding() const { return curve(Name::onboarding); }   ///< 0.3 0.8, steps of the first run
    MotionCurve hud() const { return curve(Name::hud); }         ///< 0.25 0.8, the heads-up display coming in
    MotionCurve rolling() const { return curve(Name::rolling); } ///< 0.35 0.85, digits
    /// Ease-outs, with seconds.
    MotionCurve quickFade() const { return curve(Name::quickFade); } ///< 0.12
    MotionCurve fade() const { return curve(Name::fade); }           ///< 0.18, what closes
    MotionCurve hudFade() const { return curve(Name::hudFade); }     ///< 0.2, the heads-up display
    MotionCurve change() const { return curve(Name::change); } ///< 0.25, what takes the place of something
    /// One way of what goes to and fro for ever, which stands still while `reduced`. Slow at both ends, with
    /// seconds.
    MotionCurve charging() const { return curve(Name::charging); } ///< 0.9, a battery that charges

    /// How much later each of several things comes in than the one before, in milliseconds.
    int stagger() const { return m_reduced ? 0 : 30; }
    /// How long the pointer rests before a tool tip shows, in milliseconds.
    int tipDelay() const { return 700; }
    /// Between two steps of a spinner, in milliseconds.
    int spinnerStep() const { return 100; }

    /// For a movement with a duration of its own. Who uses it asks `reduced`.
    static const QEasingCurve &easeInOut();

Q_SIGNALS:
    void changed();

private:
    enum class Name {
        panel,
        hover,
        headerHover,
        cardHover,
        press,
        selection,
        flip,
        layout,
        entrance,
        dots,
        onboarding,
        hud,
        rolling,
        quickFade,
        fade,
        hudFade,
        change,
        charging,
        count
    };

    MotionCurve curve(Name name) const;
    static MotionCurve compute(Name name);
    void readAppearance();

    Appearance *m_appearance;
    bool m_reduced = false;
    bool m_opaque = false;
    /// A spring's curve is costly to find, so each is found once, when first asked for.
    mutable std::array<std::optional<MotionCurve>, static_cast<size_t>(Name::count)> m_curves;
};

} // namespace brimlight
