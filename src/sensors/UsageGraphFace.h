#pragma once

#include "grid/WidgetLogic.h"
#include "sensors/SystemHistoryStore.h"

#include <QColor>

namespace brimlight {

/// What the usage graph shows: the shared history, which goes on while the panel is closed.
class UsageGraphFace : public brimlight::WidgetLogic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")
    Q_PROPERTY(QList<double> cpu READ cpu NOTIFY historyChanged)
    Q_PROPERTY(QList<double> ram READ ram NOTIFY historyChanged)
    Q_PROPERTY(QString cpuText READ cpuText NOTIFY historyChanged)
    Q_PROPERTY(QString ramText READ ramText NOTIFY historyChanged)
    Q_PROPERTY(QColor ramColor READ ramColor CONSTANT)

public:
    UsageGraphFace(WidgetContext &context, SystemHistoryStore &history);

    const QList<double> &cpu() const { return m_history.cpuHistory(); }
    const QList<double> &ram() const { return m_history.memHistory(); }
    QString cpuText() const;
    QString ramText() const;
    QColor ramColor() const { return QColor::fromRgbF(0.36F, 0.82F, 0.92F); }

Q_SIGNALS:
    void historyChanged();

private:
    SystemHistoryStore &m_history;
};

} // namespace brimlight
