#pragma once

#include <QFont>
#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The one place for type: which families the program sets its texts in, and the sizes that there are. A view
/// takes a style whole, `font: Fonts.strong(Fonts.label)`. Each family is the first one installed of a short
/// list, else the system's own choice of that kind. The first choices have digits of one width in every
/// weight, so that a clock or a gauge does not jitter.
class Fonts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QFont tiny READ tiny CONSTANT)
    Q_PROPERTY(QFont footnote READ footnote CONSTANT)
    Q_PROPERTY(QFont note READ note CONSTANT)
    Q_PROPERTY(QFont label READ label CONSTANT)
    Q_PROPERTY(QFont body READ body CONSTANT)
    Q_PROPERTY(QFont subtitle READ subtitle CONSTANT)
    Q_PROPERTY(QFont value READ value CONSTANT)
    Q_PROPERTY(QFont title READ title CONSTANT)
    Q_PROPERTY(QFont headline READ headline CONSTANT)
    Q_PROPERTY(QFont display READ display CONSTANT)
    Q_PROPERTY(QFont code READ code CONSTANT)

public:
    explicit Fonts(QObject *parent = nullptr);

    /// Sizes in pixels, of normal weight.
    QFont tiny() const { return style(8); }      ///< scales of a chart, the least that can be read
    QFont footnote() const { return style(9); }  ///< chips, second lines of small tiles
    QFont note() const { return style(10); }     ///< hints, labels above a control, tool tips
    QFont label() const { return style(11); }    ///< rows of settings, captions
    QFont body() const { return style(12); }     ///< menus, buttons, titles of cards and widgets
    QFont subtitle() const { return style(13); } ///< a month, a key of a keypad
    QFont value() const { return style(14); }    ///< a number beside others
    QFont title() const { return style(15); }    ///< a sheet
    QFont headline() const { return style(17); } ///< a step of the walk-through
    QFont display() const { return style(26); }  ///< one number alone
    QFont code() const;                          ///< 11, of one width

    /// The same in another weight.
    Q_INVOKABLE QFont medium(const QFont &style) const { return weighed(style, QFont::Medium); }
    Q_INVOKABLE QFont strong(const QFont &style) const { return weighed(style, QFont::DemiBold); }
    Q_INVOKABLE QFont bold(const QFont &style) const { return weighed(style, QFont::Bold); }
    /// The same, crossed out.
    Q_INVOKABLE QFont struck(const QFont &style) const;
    /// The same at a size that follows from the room there is; never below 1.
    Q_INVOKABLE QFont sized(const QFont &style, double pixels) const;
    /// The same in the family that a clock may be set to: "rounded", "monospaced" or "serif"; anything else
    /// is "rounded".
    Q_INVOKABLE QFont designed(const QFont &style, const QString &design) const;

    /// For nearly everything; clear from 9 pixels up.
    const QString &rounded() const { return m_rounded; }
    const QString &monospaced() const { return m_monospaced; }
    const QString &serif() const { return m_serif; }

    /// The first of the families that is installed. The system's kinds are "sans-serif", "monospace" and
    /// "serif".
    static QString firstInstalled(const QStringList &families, const QString &otherwise);

private:
    QFont style(int pixels) const;
    static QFont weighed(const QFont &style, QFont::Weight weight);

    QString m_rounded;
    QString m_monospaced;
    QString m_serif;
};

} // namespace brimlight
