#include "sound/sdl_sound.h"

namespace morvane {

SdlSound::SdlSound(const std::filesystem::path& folder, std::ostream& warnings, int bufferSamples)
    : warnings_(warnings), device_(warnings_, bufferSamples), effects_(folder, warnings_) {
    if (device_.isOpen())
        music_.emplace(folder, warnings_, loader_, device_.rate());
}

void SdlSound::playEffect(const std::string& file, int flags) {
    if (device_.isOpen())
        effects_.play(file, flags);
}

void SdlSound::sendMusic(const std::string& command) {
    if (music_)
        music_->command(command);
}

std::string SdlSound::effectPlaying() const {
    return device_.isOpen() ? effects_.playing() : std::string();
}

std::string SdlSound::musicPlaying() {
    return music_ ? music_->playing() : std::string();
}

} // namespace morvane
