#pragma once

#include "core/Formats.h"
#include "grid/WidgetLogic.h"
#include "sensors/Samplers.h"

#include <QColor>

namespace brimlight {

QColor diskTint(double usedFraction, const QColor &accent);
/// "Healthy" or "Watch".
QString diskStatus(double usedFraction);

/// What the disk widget shows.
class DiskFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString freeText READ freeText NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)

public:
    DiskFace(WidgetContext &context, DiskSampler &disk);

    double fraction() const { return m_snapshot.usedFraction; }
    QString percent() const;
    QString freeText() const { return formats::gigabytes(m_snapshot.freeBytes) + QStringLiteral(" free"); }
    QString status() const { return diskStatus(m_snapshot.usedFraction); }
    QColor tint() const { return diskTint(m_snapshot.usedFraction, theme().accentColor()); }

protected:
    void tick() override { m_disk.ask(); }
    void appear() override { m_disk.ask(); }

private:
    void take(const DiskSnapshot &snapshot);

    Asker<DiskSnapshot> m_disk;
    DiskSnapshot m_snapshot;
};

} // namespace brimlight
