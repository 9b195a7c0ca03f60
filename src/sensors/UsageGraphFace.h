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
    Q_PROPERTY(
        brimlight::SystemHistoryStore *history READ history WRITE setHistory NOTIFY historyChanged REQUIRED)
    Q_PROPERTY(QList<double> cpu READ cpu NOTIFY historyChanged)
    Q_PROPERTY(QList<double> ram READ ram NOTIFY historyChanged)
    Q_PROPERTY(QString cpuText READ cpuText NOTIFY historyChanged)
    Q_PROPERTY(QString ramText READ ramText NOTIFY historyChanged)
    Q_PROPERTY(QColor ramColor READ ramColor CONSTANT)

public:
    using WidgetLogic::WidgetLogic;

    SystemHistoryStore *history() const { return m_history; }
    void setHistory(SystemHistoryStore *history);
    QList<double> cpu() const { return m_history ? m_history->cpuHistory() : QList<double>(); }
    QList<double> ram() const { return m_history ? m_history->memHistory() : QList<double>(); }
    QString cpuText() const;
    QString ramText() const;
    QColor ramColor() const { return QColor::fromRgbF(0.36F, 0.82F, 0.92F); }

Q_SIGNALS:
    void historyChanged();

private:
    QPointer<SystemHistoryStore> m_history;
};

} // namespace brimlight
