#pragma once

#include "platform/AudioServer.h"

#include <algorithm>
#include <vector>

namespace brimlight::test {

/// A server with one output, of which the test tells.
class FakeAudioServer : public AudioServer
{
public:
    std::unique_ptr<AudioWatch> watch(AudioDirection direction, std::function<void(AudioDeviceState)> known,
                                      std::function<void(AudioDeviceState)> changed) override
    {
        return std::make_unique<Watch>(*this, direction, std::move(known), std::move(changed));
    }
    void outputMuted(QObject &, std::function<void(std::optional<bool>)> answered) override
    {
        answered(output ? std::optional(output->isMuted) : std::nullopt);
    }
    void toggleOutputMuted(QObject &, std::function<void()> done) override
    {
        if (output)
            change({.volume = output->volume, .isMuted = !output->isMuted});
        done();
    }

    /// The server answers for the first time, or again after a restart.
    void appear(const AudioDeviceState &state)
    {
        output = state;
        tell(&Watch::known);
    }
    void change(const AudioDeviceState &state)
    {
        output = state;
        tell(&Watch::changed);
    }
    void setVolume(double volume) { change({.volume = volume}); }
    size_t watchCount() const { return m_watches.size(); }

    std::optional<AudioDeviceState> output;

private:
    struct Watch : AudioWatch
    {
        using Callback = std::function<void(AudioDeviceState)>;

        Watch(FakeAudioServer &from, AudioDirection of, Callback first, Callback later)
            : server(from)
            , direction(of)
            , known(std::move(first))
            , changed(std::move(later))
        {
            server.m_watches.push_back(this);
        }
        ~Watch() override { std::erase(server.m_watches, this); }

        FakeAudioServer &server;
        AudioDirection direction;
        Callback known;
        Callback changed;
    };

    void tell(Watch::Callback Watch::*which)
    {
        const auto watches = m_watches;
        for (const Watch *watch : watches) {
            if (watch->direction == AudioDirection::output)
                (watch->*which)(*output);
        }
    }

    std::vector<Watch *> m_watches;
};

} // namespace brimlight::test
