#pragma once

#include "platform/linux/desktop/Gio.h"

#include <QString>

#include <memory>

namespace brimlight {

/// One key of GNOME's settings, which many other desktops use as well.
class GnomeSetting
{
public:
    /// Null where this machine does not know the key: asking for one that is not there would end the program.
    /// The first one that is opened loads a library and files, so not on the main thread.
    static std::unique_ptr<GnomeSetting> open(const QString &schema, const QString &key);
    ~GnomeSetting();
    GnomeSetting(const GnomeSetting &) = delete;
    GnomeSetting &operator=(const GnomeSetting &) = delete;

    /// For a key of that type only. Read from memory.
    bool boolean() const;
    QString text() const;
    /// False when the key may not be written. Waits until it is written, so not on the main thread.
    bool setText(const QString &text);
    /// False where the administrator has locked the key.
    bool isWritable() const;
    /// Calls back after each change of a value that has been read since this call, on the thread that has
    /// opened it: only the main thread has a loop that hears of it.
    void observe(std::function<void()> changed);

private:
    GnomeSetting(const Gio &gio, GSettings *settings, QByteArray key);

    const Gio &m_gio;
    GSettings *m_settings;
    QByteArray m_key;
    std::function<void()> m_changed;
    unsigned long m_handler = 0;
};

} // namespace brimlight
