#pragma once

#include "sensors/DiskReader.h"
#include "sensors/MachineLogic.h"

#include <QColor>

namespace brimlight {

/// Decimal gigabytes: "512 GB", "99.9 GB".
QString gb(int64_t bytes);
QColor diskTint(double usedFraction, const QColor &accent);
/// "Healthy" or "Watch".
QString diskStatus(double usedFraction);

/// What the disk widget shows.
class DiskFace : public brimlight::MachineLogic
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString freeText READ freeText NOTIFY changed)
    Q_PROPERTY(QString totalText READ totalText NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)

public:
    using MachineLogic::MachineLogic;

    double fraction() const { return m_snapshot.usedFraction; }
    QString percent() const;
    QString freeText() const { return gb(m_snapshot.freeBytes) + QStringLiteral(" free"); }
    QString totalText() const { return gb(m_snapshot.totalBytes); }
    QString status() const { return diskStatus(m_snapshot.usedFraction); }
    QColor tint() const { return diskTint(m_snapshot.usedFraction, theme().accentColor()); }

protected:
    void begin(MachinePorts &machine) override { read(machine); }
    void read(MachinePorts &machine) override { m_snapshot = DiskReader::read(machine.statistics); }

private:
    DiskSnapshot m_snapshot;
};

} // namespace brimlight
