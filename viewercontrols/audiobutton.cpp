// The audio button: besides its plain set it carries a "play" and a "pause" set, which the
// controls file's sound handlers swap in while a sound plays or stops.
#include "buttons.h"

namespace vantora::controls {
namespace {

// clang-format off
// Design 1 draws its icons a little smaller on a larger canvas; it has no pause set, as its
// "onscenechanged" copies the plain set into it.
constexpr struct { const char *member; const char *text; } DESIGN_1_SETS[] = {
    {"skin",           "dim(-2px,-2px,32px,32px,32,32);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,0,256,64,64,2,2,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,256,64,64,2,2,28,28);"},
    {"skinactive",     "dim(-2px,-2px,32px,32px,32,32);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,0,256,64,64,3,3,28,28);"},
    {"playskin",       "dim(-2px,-2px,32px,32px,32,32);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,64,256,64,64,2,2,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,256,64,64,2,2,28,28);"},
    {"playskinactive", "dim(-2px,-2px,32px,32px,32,32);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,256,64,64,3,3,28,28);"},
};
// clang-format on

} // namespace

void writeAudioButton(QJsonObject &button, int design)
{
    writeSpecButton(button, AUDIO_BUTTON, design);
    button.insert(QStringLiteral("onscenechanged"),
        QLatin1String(design == 1 ? AUDIO_ONSCENECHANGED_DESIGN_1 : AUDIO_ONSCENECHANGED));
    if (design == 1) {
        for (const auto &set : DESIGN_1_SETS)
            button.insert(QLatin1String(set.member), QLatin1String(set.text));
        return;
    }
    writeFamilySkins(
        button, design, AUDIO_BUTTON.tile, AUDIO_BUTTON.quirks, QStringLiteral("pause"));
    writeFamilySkins(button, design, AUDIO_PLAY_TILE, AUDIO_BUTTON.quirks, QStringLiteral("play"));
}

} // namespace vantora::controls
