#pragma once

#include "platform/Scheduler.h"

#include <QPointer>

#include <list>
#include <optional>
#include <vector>

namespace brimlight::test {

/// A loop whose time moves only by `advance`.
class ManualScheduler : public Scheduler
{
public:
    QDateTime now() const override { return m_epoch.addMSecs(m_elapsed.count()); }
    void post(QObject &context, std::function<void()> body) override;
    std::unique_ptr<Scheduled> after(std::chrono::milliseconds delay, std::function<void()> body) override;
    std::unique_ptr<Scheduled> every(std::chrono::milliseconds period, std::chrono::milliseconds tolerance,
                                     std::function<void()> body) override;
    /// The work runs with what has been posted, unless it is held.
    void aside(QObject &context, std::function<void()> work, std::function<void()> done) override;

    /// From now on what is put aside hangs, until it is let go.
    void holdAside() { m_isAsideHeld = true; }
    void letAsideGo();
    /// How much hangs.
    int heldCount() const { return static_cast<int>(m_held.size()); }

    /// Runs what has been posted, and what that posts in its turn.
    void runPosted();
    /// Lets time pass: what is due runs in its order, with the posted work after each.
    void advance(std::chrono::milliseconds time);

    /// The repeating timers that exist now.
    int repeatingCount() const;
    /// Delayed and repeating work that exists now.
    int pendingCount() const { return static_cast<int>(m_entries.size()); }
    /// The period and tolerance of the last repeating timer.
    std::chrono::milliseconds lastPeriod{0};
    std::chrono::milliseconds lastTolerance{0};

private:
    struct Entry
    {
        std::chrono::milliseconds due;
        std::optional<std::chrono::milliseconds> period;
        std::function<void()> body;
    };
    class Handle;

    struct Posted
    {
        QPointer<QObject> context;
        std::function<void()> body;
    };

    std::unique_ptr<Scheduled> add(Entry entry);

    QDateTime m_epoch = QDateTime(QDate(2026, 3, 14), QTime(9, 26, 53), Qt::UTC);
    std::chrono::milliseconds m_elapsed{0};
    std::list<std::shared_ptr<Entry>> m_entries;
    std::vector<Posted> m_posted;
    bool m_isAsideHeld = false;
    std::vector<Posted> m_held;
};

} // namespace brimlight::test
