#pragma once

#include "grid/WidgetLogic.h"

namespace brimlight {

/// What the digital clock shows. Its options are "font" ("rounded", "monospaced", "serif") and "style"
/// ("gradient", "solid", "monochrome"); any other value counts as the first.
class ClockFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(QString time READ time NOTIFY changed)
    Q_PROPERTY(QString seconds READ seconds NOTIFY changed)
    Q_PROPERTY(QString meridiem READ meridiem NOTIFY changed)
    Q_PROPERTY(QString date READ date NOTIFY changed)
    Q_PROPERTY(int fontSize READ fontSize NOTIFY changed)
    Q_PROPERTY(QString font READ font NOTIFY changed)
    Q_PROPERTY(QString style READ style NOTIFY changed)

public:
    using WidgetLogic::WidgetLogic;

    QString time() const;
    /// Two digits; empty where they are not shown, as on a small tile.
    QString seconds() const;
    /// Empty on a 24-hour clock and on a small tile.
    QString meridiem() const;
    /// "Saturday, 14 Mar"; empty on a small tile.
    QString date() const;
    /// Of the time, in points.
    int fontSize() const;
    QString font() const;
    QString style() const;
};

} // namespace brimlight
