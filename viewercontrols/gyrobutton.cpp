// The gyroscope button: its face tells whether device orientation steers the view, the disabled
// look at opacity 0.66 and the enabled one at 1.0. It starts disabled and hidden.
#include "buttons.h"

#include "viewerparams/actions.h"
#include "viewerparams/design.h"

namespace vantora::controls {
namespace {

struct GyroRow
{
    const char *skin;
    const char *disabledSkin; // the pressed position in designs 2, 3 and 5
    const char *enabledSkin;
};

// clang-format off
constexpr params::PerDesign<GyroRow> GYRO_SETS = params::perDesign<GyroRow>({
    /* 0 */ {"shadow(5,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);",
             "shadow(5,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);",
             "shadow(5,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
    /* 1 */ {"shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);",
             "shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);",
             "shadow(3,2,2,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
    /* 2 */ {"shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,5,2,24,24,#444);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24,#333);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));comp(1.0);copy(defaultSkin,64,128,64,64,5,2,24,24,#444);"},
    /* 3 */ {"shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,5,2,24,24,#444);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24,#333);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));comp(1.0);copy(defaultSkin,64,128,64,64,5,2,24,24,#444);"},
    /* 4 */ {"shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,5,5,24,24);",
             "shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,5,5,24,24);",
             "shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,5,5,24,24);"},
    /* 5 */ {"shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,5,2,24,24);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));comp(1.0);copy(defaultSkin,64,128,64,64,5,2,24,24);"},
    /* 6 */ {"comp(0.66);copy(defaultSkin,64,128,64,64,5,5,24,24);",
             "comp(0.66);copy(defaultSkin,64,128,64,64,5,5,24,24);",
             "comp(1.0);copy(defaultSkin,64,128,64,64,5,5,24,24);"},
    /* 7 */ {"shadow(5,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);",
             "shadow(5,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);",
             "shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
});

// Design 7's disabled hover and pressed faces: the halo behind the dimmed icon. The enabled ones
// are the family rule's.
constexpr struct { const char *members[2]; const char *text; } DESIGN_7_HALOS[] = {
    {{"skinhover", "disabledskinhover"},   "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {{"skinactive", "disabledskinactive"}, "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,10,10,28,28);"},
};
// clang-format on

} // namespace

void writeGyroButton(QJsonObject &button, int design, QJsonArray &actions)
{
    writeSpecButton(button, GYRO_BUTTON, design);
    if (const GyroRow *found = params::designRow(GYRO_SETS, design)) {
        const GyroRow &row = *found;
        button.insert(QStringLiteral("skin"), QLatin1String(row.skin));
        button.insert(QStringLiteral("disabledskin"), QLatin1String(row.disabledSkin));
        button.insert(QStringLiteral("enabledskin"), QLatin1String(row.enabledSkin));
    }
    if (design == 7) {
        for (const auto &halo : DESIGN_7_HALOS)
            for (const char *member : halo.members)
                if (member)
                    button.insert(QLatin1String(member), QLatin1String(halo.text));
        button.insert(QStringLiteral("enabledskinhover"),
            familySkin(design, SkinMember::SkinHover, GYRO_BUTTON.tile));
        button.insert(QStringLiteral("enabledskinactive"),
            familySkin(design, SkinMember::SkinActive, GYRO_BUTTON.tile));
    }
    params::appendAction(actions, QStringLiteral("updateGyroButton"),
        QLatin1String(design == 7 ? UPDATE_GYRO_BUTTON_DESIGN_7 : UPDATE_GYRO_BUTTON));
}

} // namespace vantora::controls
