#pragma once

#include <memory>
#include <string>

namespace vellarno {

/// Plays short sounds through the desktop's event sound service, one at a time. The service is
/// spoken to on a thread of its own: one that is absent or doesn't answer costs the caller nothing.
class SoundPlayer
{
public:
    SoundPlayer();
    /// Does not wait for a service that hangs.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    /// Starts the sound, a WAV image, and returns at once. A later sound cuts it off.
    void Play(const std::string& WaveImage);

private:
    struct Channel;
    std::shared_ptr<Channel> channel; ///< shared with the thread, which may outlive the player
};

}
