#pragma once

#include "core/Document.h"
#include "theme/Motion.h"
#include "theme/Theme.h"
#include "theme/ThemeFile.h"

#include <QObject>
#include <QVariantAnimation>
#include <QtQmlIntegration>

namespace brimlight {

class Log;
class UserDefaults;

/// The theme in force and the strength of the glass.
///
/// The theme is read once from its file and written to it, whole, at every change of a colour; a start
/// without a change writes nothing. A theme from the file is taken as it stands, so a preset that a later
/// version changes keeps the colours with which it was saved. There is one custom theme: the current one,
/// once a colour of it was changed.
class ThemeStore : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(brimlight::Theme current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(brimlight::Theme shown READ shown NOTIFY shownChanged)
    Q_PROPERTY(double glassStrength READ glassStrength WRITE setGlassStrength NOTIFY glassStrengthChanged)
    Q_PROPERTY(QList<brimlight::Theme> builtIns READ builtIns CONSTANT)

public:
    static constexpr double defaultGlassStrength = 0.55;

    /// The file need not exist; its folder is made when it is first written.
    ThemeStore(SavedFile file, UserDefaults &defaults, Log &log);

    const QList<Theme> &builtIns() const { return Theme::builtIns(); }

    const Theme &current() const { return m_current; }
    /// Saves. A write that fails is logged; the theme holds nevertheless.
    void setCurrent(const Theme &theme);
    /// What is drawn with: `current`, or what is on the way to it.
    const Theme &shown() const { return m_shown; }
    /// Takes the preset with exactly this id; nothing happens when there is none.
    Q_INVOKABLE void selectPalette(const QString &id);
    /// The same, and `shown` follows on the curve.
    Q_INVOKABLE void fadeToPalette(const QString &id, const brimlight::MotionCurve &curve);
    /// Back to the default theme; the strength of the glass stays.
    Q_INVOKABLE void reset();

    /// One colour replaced, opacity included: the theme becomes the custom one.
    Q_INVOKABLE void setAccent(const QColor &color) { replace(&Theme::accent, color); }
    Q_INVOKABLE void setSurface(const QColor &color) { replace(&Theme::surface, color); }
    Q_INVOKABLE void setSurfaceElevated(const QColor &color) { replace(&Theme::surfaceElevated, color); }
    Q_INVOKABLE void setTextPrimary(const QColor &color) { replace(&Theme::textPrimary, color); }
    Q_INVOKABLE void setTextSecondary(const QColor &color) { replace(&Theme::textSecondary, color); }
    Q_INVOKABLE void setSeparator(const QColor &color) { replace(&Theme::separator, color); }

    /// From 0 to 1 by its meaning, but a stored number is given as it is: who draws with it limits it.
    double glassStrength() const { return m_glassStrength; }
    void setGlassStrength(double strength);

Q_SIGNALS:
    void currentChanged();
    void shownChanged();
    void glassStrengthChanged();

private:
    void show(const Theme &theme);
    void replace(ThemeColor Theme::*field, const QColor &color);
    void save();

    Document<encodeTheme, decodeTheme> m_document;
    UserDefaults &m_defaults;
    Log &m_log;
    Theme m_current;
    Theme m_shown;
    /// From 0 to 1 while `shown` goes from `m_fadeStart` to `current`.
    QVariantAnimation m_fade;
    Theme m_fadeStart;
    double m_glassStrength;
};

} // namespace brimlight
