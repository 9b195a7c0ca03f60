#pragma once

#include "theme/Theme.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The theme in force.
class ThemeStore : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(brimlight::Theme current READ current NOTIFY currentChanged)

public:
    explicit ThemeStore(QObject *parent = nullptr);

    const Theme &current() const { return m_current; }

Q_SIGNALS:
    void currentChanged();

private:
    Theme m_current = Theme::midnight();
};

} // namespace brimlight
