#include "platform/linux/process/QtScheduler.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QObject>
#include <QThread>

#include <future>
#include <thread>

namespace brimlight::test {
namespace {

/// Turns the loop until this holds.
template<typename Condition>
void waitUntil(Condition holds)
{
    while (!holds()) {
        QCoreApplication::processEvents();
        std::this_thread::yield();
    }
}

} // namespace

TEST(Aside, WorkRunsElsewhereAndItsEndHere)
{
    QtScheduler scheduler;
    QObject context;
    QThread *worked = nullptr;
    QThread *ended = nullptr;
    scheduler.aside(
        context, [&worked] { worked = QThread::currentThread(); },
        [&ended] { ended = QThread::currentThread(); });
    EXPECT_EQ(ended, nullptr) << "not within the call";
    waitUntil([&ended] { return ended; });
    EXPECT_EQ(ended, QThread::currentThread());
    EXPECT_NE(worked, nullptr);
    EXPECT_NE(worked, ended);
}

TEST(Aside, WhatHangsLetsAllOthersPass)
{
    QtScheduler scheduler;
    QObject context;
    std::promise<void> gate;
    const std::shared_future<void> open = gate.get_future().share();
    constexpr int many = 20;
    int hung = 0;
    int passed = 0;
    for (int i = 0; i < many; ++i) {
        scheduler.aside(
            context, [open] { open.wait(); }, [&hung] { ++hung; });
        scheduler.aside(
            context, [] {}, [&passed] { ++passed; });
    }
    waitUntil([&passed] { return passed == many; });
    EXPECT_EQ(hung, 0);
    EXPECT_FALSE(scheduler.isAsideIdle());
    gate.set_value();
    waitUntil([&hung] { return hung == many; });
    EXPECT_TRUE(scheduler.isAsideIdle());
}

TEST(Aside, NothingEndsForAContextThatIsGone)
{
    QtScheduler scheduler;
    QObject stays;
    bool hasEnded = false;
    bool isOver = false;
    {
        QObject goes;
        scheduler.aside(
            goes, [] {}, [&hasEnded] { hasEnded = true; });
    }
    waitUntil([&] { return scheduler.isAsideIdle(); });
    scheduler.aside(
        stays, [] {}, [&isOver] { isOver = true; });
    waitUntil([&isOver] { return isOver; });
    EXPECT_FALSE(hasEnded);
}

TEST(Aside, TheSchedulerMayGoWhileWorkHangs)
{
    std::promise<void> begun;
    std::promise<void> gate;
    std::promise<void> left;
    bool hasEnded = false;
    QObject context;
    {
        QtScheduler scheduler;
        scheduler.aside(
            context,
            [&] {
                begun.set_value();
                gate.get_future().wait();
                left.set_value();
            },
            [&hasEnded] { hasEnded = true; });
        begun.get_future().wait();
    }
    gate.set_value();
    left.get_future().wait();
    QCoreApplication::processEvents();
    EXPECT_FALSE(hasEnded);
}

} // namespace brimlight::test
