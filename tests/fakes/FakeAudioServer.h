#pragma once

#include "platform/AudioServer.h"

#include <QPointer>

#include <vector>

namespace brimlight::test {

/// A server whose devices the test moves; everything is answered when the test says so.
class FakeAudioServer : public AudioServer
{
public:
    std::unique_ptr<AudioWatch> watch(AudioDirection direction,
                                      std::function<void(std::optional<AudioDeviceState>)> known,
                                      std::function<void(AudioDeviceState)> changed) override
    {
        return std::make_unique<Watch>(*this, direction, std::move(known), std::move(changed));
    }
    void outputMuted(QObject &context, std::function<void(std::optional<bool>)> answered) override
    {
        m_pending.push_back([this, guard = QPointer(&context), answered = std::move(answered)] {
            if (guard)
                answered(output ? std::optional(output->isMuted) : std::nullopt);
        });
    }
    void toggleOutputMuted(QObject &context, std::function<void()> done) override
    {
        m_pending.push_back([this, guard = QPointer(&context), done = std::move(done)] {
            if (output)
                output->isMuted = !output->isMuted;
            if (guard)
                done();
        });
    }

    /// What has been asked is answered.
    void answer()
    {
        for (const auto &pending : std::exchange(m_pending, {}))
            pending();
    }
    /// The default device of a direction is found, or another becomes it.
    void find(AudioDirection direction, const AudioDeviceState &state) { tell(direction, state); }
    /// The last device of a direction goes.
    void lose(AudioDirection direction) { tell(direction, std::nullopt); }
    void change(AudioDirection direction, const AudioDeviceState &state)
    {
        for (const Watch *watch : watches) {
            if (watch->direction == direction)
                watch->changed(state);
        }
    }

    /// An output becomes the default, for the first time, after another, or again after a restart.
    void appear(const AudioDeviceState &state)
    {
        output = state;
        find(AudioDirection::output, state);
    }
    /// The last output goes.
    void vanish()
    {
        output.reset();
        lose(AudioDirection::output);
    }
    void change(const AudioDeviceState &state)
    {
        output = state;
        change(AudioDirection::output, state);
    }
    void setVolume(double volume) { change({.volume = volume}); }
    size_t watchCount() const { return watches.size(); }

    struct Watch : AudioWatch
    {
        Watch(FakeAudioServer &server, AudioDirection direction,
              std::function<void(std::optional<AudioDeviceState>)> known,
              std::function<void(AudioDeviceState)> changed)
            : server(server)
            , direction(direction)
            , known(std::move(known))
            , changed(std::move(changed))
        {
            server.watches.push_back(this);
        }
        ~Watch() override { std::erase(server.watches, this); }

        FakeAudioServer &server;
        AudioDirection direction;
        std::function<void(std::optional<AudioDeviceState>)> known;
        std::function<void(AudioDeviceState)> changed;
    };

    /// The default output; absent without one.
    std::optional<AudioDeviceState> output;
    std::vector<Watch *> watches;

private:
    void tell(AudioDirection direction, const std::optional<AudioDeviceState> &state)
    {
        for (const Watch *watch : watches) {
            if (watch->direction == direction)
                watch->known(state);
        }
    }

    std::vector<std::function<void()>> m_pending;
};

} // namespace brimlight::test
