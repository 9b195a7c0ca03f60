#pragma once

#include "platform/SmcTransport.h"

#include <QString>

#include <vector>

namespace brimlight {

/// Answers the controller's records from the kernel's hwmon chips:
///
///     #KEY   how many keys there are
///     TC0P   the processor's package, of several the hottest: what its maker calls its temperature
///     Tp..   the processor's sensors, where none speaks for all of it
///     Ts..   all others; in a type that nobody decodes, so that listing the keys does not bother a drive
///
/// The two characters count up in an order that is the same at every boot. A sensor whose device sleeps is
/// not read: it fails, as does one that is gone or holds no number.
class HwmonSmc : public SmcTransport
{
public:
    explicit HwmonSmc(const QString &root = QStringLiteral("/sys"));

    /// Lists the sensors. Absent without one of the processor, so that other sources are asked.
    std::optional<uint32_t> open() override;
    void close(uint32_t connection) override;
    SmcReply call(uint32_t connection, const SmcRecord &request) override;

private:
    struct Sensor;
    struct Input
    {
        QString file;
        QString runtimeStatus;
    };
    struct Key
    {
        uint32_t code = 0;
        uint32_t dataType = 0;
        uint32_t dataSize = 0;
        /// The hottest of them counts; empty for what is no sensor of a chip.
        std::vector<Input> inputs;
    };

    std::vector<Sensor> sensors() const;
    void addChip(const QString &folder, std::vector<Sensor> &sensors) const;
    const Key *find(uint32_t code) const;
    static std::optional<double> hottest(const std::vector<Input> &inputs);

    void answerIndex(const SmcRecord &request, SmcRecord &answer) const;
    void answerInfo(const Key &key, SmcRecord &answer) const;
    void answerValue(const Key &key, SmcRecord &answer) const;

    /// Without links in it.
    QString m_root;
    uint32_t m_connection = 0;
    /// In the order of their index; empty while not open.
    std::vector<Key> m_keys;
};

} // namespace brimlight
