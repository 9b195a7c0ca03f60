#pragma once

#include "theme/ThemeStore.h"

#include <QPointer>

namespace brimlight {

/// What the settings panel says about the theme: which preset is marked, what the colours are called, how
/// strong the glass is.
class ThemeChoices : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::ThemeStore *theme READ theme WRITE setTheme NOTIFY changed REQUIRED)
    Q_PROPERTY(int marked READ marked NOTIFY changed)
    Q_PROPERTY(QString strengthText READ strengthText NOTIFY changed)
    Q_PROPERTY(QList<QString> colorLabels READ colorLabels CONSTANT)
    Q_PROPERTY(QList<QColor> colors READ colors NOTIFY changed)
    Q_PROPERTY(QList<QString> colorTexts READ colorTexts NOTIFY changed)

public:
    using QObject::QObject;

    ThemeStore *theme() const { return m_theme; }
    void setTheme(ThemeStore *theme);

    /// The preset in force; -1 under a custom theme.
    int marked() const;
    /// "55%". A stored strength beyond the ends of the slider reads as that end, as it is drawn.
    QString strengthText() const;

    /// Keys of the translation table.
    static QStringList colorLabels();
    QList<QColor> colors() const;
    /// "#FFFFFF · 8%"; without the opacity where it is full.
    QStringList colorTexts() const;
    /// The theme becomes the custom one.
    Q_INVOKABLE void setColor(int index, const QColor &color);

Q_SIGNALS:
    void changed();

private:
    QPointer<ThemeStore> m_theme;
};

} // namespace brimlight
