// Opens and closes the panel of the real program on a real display and tells how long its frames take.
//
//   expansion_frames [openings]          20 by default
//
// A frame counts from the moment the window is told to draw (an update request or an exposure) until it has
// been handed to the display server. It has three parts: preparing (delayed input, layout, synchronisation of
// the scene), rendering, and presenting, which is the copy into shared memory and the request to show it, not
// the server's own work. What the animation costs outside of frames is in the processor time. One "name
// value" a line on the standard output, times in milliseconds.

#include "app/AppDelegate.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace brimlight {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct Frame
{
    Milliseconds prepare{};
    Milliseconds render{};
    Milliseconds present{};
    Milliseconds processor{};
    bool exposed = false;

    Milliseconds whole() const { return prepare + render + present; }
};

Milliseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Times the frames of a window that is drawn on the main thread.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QQuickWindow &window)
    {
        window.installEventFilter(this);
        connect(
            &window, &QQuickWindow::beforeRendering, this, [this] { m_rendering = Clock::now(); },
            Qt::DirectConnection);
        connect(
            &window, &QQuickWindow::afterRendering, this, [this] { m_rendered = Clock::now(); },
            Qt::DirectConnection);
        connect(
            &window, &QQuickWindow::frameSwapped, this, [this] { swapped(); }, Qt::DirectConnection);
    }

    void start() { m_recording = true; }
    std::vector<Frame> stop()
    {
        m_recording = false;
        return std::exchange(m_frames, {});
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::UpdateRequest || event->type() == QEvent::Expose) {
            m_asked = Clock::now();
            m_processorBefore = processorTime();
            m_exposed = event->type() == QEvent::Expose;
        }
        return false;
    }

private:
    void swapped()
    {
        if (m_recording)
            m_frames.push_back({.prepare = m_rendering - m_asked,
                                .render = m_rendered - m_rendering,
                                .present = Clock::now() - m_rendered,
                                .processor = processorTime() - m_processorBefore,
                                .exposed = m_exposed});
    }

    std::vector<Frame> m_frames;
    Clock::time_point m_asked;
    Clock::time_point m_rendering;
    Clock::time_point m_rendered;
    Milliseconds m_processorBefore{};
    bool m_exposed = false;
    bool m_recording = false;
};

void spin(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void spinWhileAnimating(const NotchPanel &panel)
{
    while (panel.isAnimating())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double quantile(std::vector<double> values, double share)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const auto rank = static_cast<size_t>(std::ceil(share * static_cast<double>(values.size())));
    return values[std::clamp<size_t>(rank, 1, values.size()) - 1];
}

void print(const std::string &name, double value)
{
    std::printf("%s %.3f\n", name.c_str(), value);
}

template<typename Part>
void printFrames(const std::string &name, const std::vector<Frame> &frames, Part part)
{
    std::vector<double> times;
    for (const Frame &frame : frames)
        times.push_back(std::invoke(part, frame).count());
    print(name + "_median", quantile(times, 0.5));
    print(name + "_p95", quantile(times, 0.95));
    print(name + "_max", quantile(times, 1));
}

int measure(int openings)
{
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    NotchController &notch = delegate.notch();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    auto *window = windows.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(windows.first());
    if (!window) {
        std::fprintf(stderr, "expansion_frames: the program shows no window\n");
        return 1;
    }
    FrameWatch watch(*window);
    const auto rest = [] { spin(std::chrono::milliseconds(400)); };
    rest();

    std::vector<Frame> frames;
    std::vector<double> processor;
    std::vector<double> response;
    // The first opening makes the views and stands apart.
    for (int opening = 0; opening <= openings; ++opening) {
        const auto began = Clock::now();
        const Milliseconds processorBefore = processorTime();
        Milliseconds untilDrawn{};
        const auto drawn = QObject::connect(window, &QQuickWindow::frameSwapped, &watch, [&] {
            if (untilDrawn == Milliseconds::zero())
                untilDrawn = Clock::now() - began;
        });
        watch.start();
        notch.open();
        spinWhileAnimating(notch.panel());
        const std::vector<Frame> recorded = watch.stop();
        const Milliseconds used = processorTime() - processorBefore;
        QObject::disconnect(drawn);
        if (opening == 0) {
            print("first_opening_until_drawn", untilDrawn.count());
            printFrames("first_opening", recorded, &Frame::whole);
        } else {
            frames.insert(frames.end(), recorded.begin(), recorded.end());
            processor.push_back(used.count());
            response.push_back(untilDrawn.count());
        }
        rest();
        notch.requestClose();
        spinWhileAnimating(notch.panel());
        rest();
    }
    if (frames.empty()) {
        std::fprintf(stderr, "expansion_frames: no frame has been drawn\n");
        return 1;
    }
    print("scale", window->devicePixelRatio());
    print("openings", openings);
    print("frames_per_opening", static_cast<double>(frames.size()) / openings);
    print("exposures_per_opening",
          static_cast<double>(
              std::count_if(frames.begin(), frames.end(), [](const Frame &f) { return f.exposed; })) /
              openings);
    printFrames("frame", frames, &Frame::whole);
    printFrames("prepare", frames, &Frame::prepare);
    printFrames("render", frames, &Frame::render);
    printFrames("present", frames, &Frame::present);
    printFrames("processor", frames, &Frame::processor);
    print("opening_until_drawn", quantile(response, 0.5));
    print("opening_processor", quantile(processor, 0.5));
    return 0;
}

} // namespace
} // namespace brimlight

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // Another backend draws on the main thread as well, so that its frames can be told apart.
    qputenv("QSG_RENDER_LOOP", "basic");
    qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const int openings = argc > 1 ? std::atoi(argv[1]) : 20;
    if (openings < 1) {
        std::fprintf(stderr, "usage: expansion_frames [openings]\n");
        return 2;
    }
    return brimlight::measure(openings);
}
