#pragma once

#include "fakes/ManualScheduler.h"
#include "platform/OverlaySurface.h"
#include "platform/Platform.h"

#include <QMap>

#include <algorithm>
#include <set>

namespace brimlight::test {

class MemoryDefaults : public UserDefaults
{
public:
    std::optional<Value> value(const QString &key) const override
    {
        const auto it = values.find(key);
        return it == values.end() ? std::nullopt : std::optional(*it);
    }
    void setValue(const QString &key, const Value &value) override
    {
        values.insert(key, value);
        writes.append(key);
    }
    void remove(const QString &key) override
    {
        values.remove(key);
        writes.append(key);
    }

    QMap<QString, Value> values;
    QStringList writes;
};

class FakeFolders : public Folders
{
public:
    std::optional<QString> applicationSupport() const override { return support; }
    QString temporary() const override { return temp; }

    std::optional<QString> support;
    QString temp;
};

class RecordingLog : public Log
{
public:
    struct Entry
    {
        LogLevel level;
        QString category;
        QString message;
        bool operator==(const Entry &) const = default;
    };
    void write(LogLevel level, const QString &category, const QString &message) override
    {
        entries.push_back({level, category, message});
    }
    QStringList messages() const
    {
        QStringList list;
        for (const Entry &entry : entries)
            list.append(entry.message);
        return list;
    }

    std::vector<Entry> entries;
};

class FakeScreens : public Screens
{
public:
    std::vector<Screen> screens() const override { return list; }
    std::optional<Screen> mainScreen() const override { return main; }
    void observeChanges(std::function<void()> changed) override { notify = std::move(changed); }

    /// One screen of this size without a housing.
    void setPlain(double width, double height)
    {
        const Rect frame{0, 0, width, height};
        list = {{.localizedName = QStringLiteral("Fake"), .frame = frame, .visibleFrame = frame}};
        main = list.front();
    }
    void setNone()
    {
        list.clear();
        main.reset();
    }

    std::vector<Screen> list;
    std::optional<Screen> main;
    std::function<void()> notify;
};

class FakePointer : public Pointer
{
public:
    using Callbacks = std::vector<std::function<void()> *>;

    std::optional<Point> location() const override { return where; }
    bool isAnyButtonPressed() const override { return pressed; }
    std::unique_ptr<EventMonitor> monitorLocalMotion(std::function<void()> moved) override
    {
        return std::make_unique<Monitor>(local, std::move(moved));
    }
    std::unique_ptr<EventMonitor> monitorGlobalMotion(std::function<void()> moved) override
    {
        if (refusesGlobal)
            return nullptr;
        return std::make_unique<Monitor>(global, std::move(moved));
    }
    std::unique_ptr<EventMonitor> monitorLeftRelease(std::function<void()> released) override
    {
        return std::make_unique<Monitor>(releases, std::move(released));
    }

    static void send(const Callbacks &monitors)
    {
        // One that is called may end another.
        for (auto *callback : Callbacks(monitors))
            (*callback)();
    }

    std::optional<Point> where;
    bool pressed = false;
    bool refusesGlobal = false;
    Callbacks local;
    Callbacks global;
    Callbacks releases;

private:
    class Monitor : public EventMonitor
    {
    public:
        Monitor(Callbacks &list, std::function<void()> callback)
            : m_list(list)
            , m_callback(std::move(callback))
        {
            m_list.push_back(&m_callback);
        }
        ~Monitor() override { std::erase(m_list, &m_callback); }

    private:
        Callbacks &m_list;
        std::function<void()> m_callback;
    };
};

class FakeSignals : public UnixSignals
{
public:
    bool install(int signal, const std::function<void()> &action) override
    {
        actions.insert(signal, action);
        return true;
    }

    QMap<int, std::function<void()>> actions;
};

class FakeAppearance : public Appearance
{
public:
    bool reducesMotion() const override { return reducedMotion; }
    bool reducesTransparency() const override { return reducedTransparency; }
    bool isDark() const override { return dark; }
    void observeChanges(std::function<void()> changed) override { notify = std::move(changed); }

    /// As the user changes the settings of the desktop.
    void set(bool motion, bool transparency)
    {
        reducedMotion = motion;
        reducedTransparency = transparency;
        if (notify)
            notify();
    }

    bool reducedMotion = false;
    bool reducedTransparency = false;
    bool dark = false;
    std::function<void()> notify;
};

class FakeLoginItem : public LoginItem
{
public:
    bool isEnabled() const override { return enabled; }
    std::optional<QString> enable() override { return change(true); }
    std::optional<QString> disable() override { return change(false); }

    bool enabled = false;
    /// What every change fails with.
    std::optional<QString> error;

private:
    std::optional<QString> change(bool to)
    {
        if (!error)
            enabled = to;
        return error;
    }
};

class FakeStatusItem : public StatusItem
{
public:
    void setImage(StatusImage newImage) override { image = std::move(newImage); }
    void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
    void setMenu(std::vector<StatusMenuEntry> newEntries, std::function<void()> newWillOpen) override
    {
        entries = std::move(newEntries);
        willOpen = std::move(newWillOpen);
    }
    void setChecked(int index, bool isOn) override
    {
        if (isOn)
            checked.insert(index);
        else
            checked.erase(index);
    }

    void choose(const QString &title)
    {
        for (const StatusMenuEntry &entry : entries) {
            if (entry.title == title)
                entry.action();
        }
    }

    StatusImage image;
    std::function<void()> action;
    std::vector<StatusMenuEntry> entries;
    std::function<void()> willOpen;
    std::set<int> checked;
};

class FakeSurface : public OverlaySurface
{
public:
    void setEvents(Events newEvents) override { events = std::move(newEvents); }
    void orderFront() override { isFront = true; }
    void setExtent(const Rect &newExtent) override { extents.push_back(newExtent); }
    void setOutlines(const std::vector<SurfaceOutline> &newOutlines) override { outlines = newOutlines; }
    void setSensor(const SurfaceSensor &newSensor) override { sensor = newSensor; }
    void setScrollable(std::function<ScrollAxes(Point)> at) override { scrollableAt = std::move(at); }
    void setWantsKeyboard(bool wants) override { wantsKeyboard = wants; }
    void setWatchesEscape(bool watches) override { watchesEscape = watches; }
    SurfaceBackdrop backdrop() const override { return currentBackdrop; }

    Rect extent() const { return extents.empty() ? Rect{} : extents.back(); }

    Events events;
    bool isFront = false;
    std::vector<Rect> extents;
    std::vector<SurfaceOutline> outlines;
    SurfaceSensor sensor;
    std::function<ScrollAxes(Point)> scrollableAt;
    bool wantsKeyboard = false;
    bool watchesEscape = false;
    SurfaceBackdrop currentBackdrop = SurfaceBackdrop::opaque;
};

} // namespace brimlight::test
