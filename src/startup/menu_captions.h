// The captions of the hidden menu tree, in Japanese or in English.
#pragma once

#include <string>

namespace morvane {

struct MenuCaptions {
    std::string game;
    std::string start;
    std::string retry;
    std::string record;
    std::string vs;
    std::string exit;
    std::string changeMode;
    std::string currentCondition;
    std::string option;
    std::string sound;
    std::string help;
    std::string helpContents;
    std::string key;
    std::string about;
};

MenuCaptions menuCaptions(bool japanese);

} // namespace morvane
