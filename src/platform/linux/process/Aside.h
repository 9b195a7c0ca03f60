#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <functional>

namespace brimlight {

/// Runs `work` on another thread, however long it takes, and hands its result to `done` on the main thread,
/// unless `context` is gone by then. `work` owns all that it uses. To be called on the main thread.
template<typename Result>
void runAside(QObject &context, std::function<Result()> work, std::function<void(Result)> done)
{
    QThreadPool::globalInstance()->start([application = QCoreApplication::instance(),
                                          guard = QPointer(&context), work = std::move(work),
                                          done = std::move(done)] {
        const Result result = work();
        // Through the application object, which the program keeps until the pool is done, but is no longer
        // the `instance()` then. The context may go at any time and is looked at on its own thread alone.
        QMetaObject::invokeMethod(
            application,
            [guard, done, result] {
                if (guard)
                    done(result);
            },
            Qt::QueuedConnection);
    });
}

} // namespace brimlight
