#include "events.h"

#include "actions.h"
#include "design.h"
#include "eventtexts.h"
#include "plugin/cformat.h"

namespace vantora::params {
namespace {

// clang-format off
// The play and audio handlers follow the skin sets each design's buttons have.
struct DesignHandlers
{
    const char *onplay;
    const char *onstop;
    const char *audioSets; // assignments between AUDIO_HEAD and AUDIO_TAIL
};
constexpr PerDesign<DesignHandlers> DESIGN_HANDLERS = perDesign<DesignHandlers>({
    {PLAY_ALL_SETS, STOP_ALL_SETS,        AUDIO_ALL_SETS},
    {PLAY_DESIGN_1, STOP_DESIGN_1,        AUDIO_ALL_SETS},
    {PLAY_TINTED,   STOP_SKIN_AND_ACTIVE, AUDIO_SKIN_AND_ACTIVE},
    {PLAY_TINTED,   STOP_SKIN_AND_ACTIVE, AUDIO_SKIN_AND_ACTIVE},
    {PLAY_DESIGN_4, STOP_SKIN_AND_ACTIVE, AUDIO_ALL_SETS},
    {PLAY_DESIGN_5, STOP_SKIN_AND_ACTIVE, AUDIO_SKIN_AND_ACTIVE},
    {PLAY_DESIGN_6, STOP_DESIGN_6,        AUDIO_SKIN_ONLY},
    {PLAY_ALL_SETS, STOP_ALL_SETS,        AUDIO_ALL_SETS},
});
// clang-format on

QString audioHandler(const char *sets, const char *face)
{
    return QLatin1String(AUDIO_HEAD)
        + QString::fromLatin1(sets).replace(QLatin1Char('@'), QLatin1String(face))
        + QLatin1String(AUDIO_TAIL);
}

// head + (gyro part when wanted) + tail
QString assembled(const char *head, bool withGyro, const char *gyro, const char *tail)
{
    QString text = QLatin1String(head);
    if (withGyro)
        text += QLatin1String(gyro);
    return text + QLatin1String(tail);
}

} // namespace

void buildMainEvents(QJsonObject &controlsRoot, QJsonArray &actions, const EventFlags &flags,
    const plugin::View &view)
{
    // A scene change must carry the gyroscope over whenever it is in use, by the user's button
    // or by VR mode, which steers with it.
    const bool gyroInUse = flags.gyroSupport || flags.vr;

    QString oninit = assembled(INIT_HEAD, gyroInUse, INIT_GYRO, "");
    if (flags.littlePlanetIntro)
        oninit += plugin::cFormatText(INIT_LITTLE_PLANET_FORMAT, view.pan, view.tilt, view.hfov);
    oninit += QLatin1String(INIT_TAIL);

    QJsonObject events;
    events.insert(QStringLiteral("id"), QStringLiteral("mainEvents"));
    events.insert(QStringLiteral("ongyroscopeavailable"),
        QLatin1String(flags.gyroOnAtStart ? GYRO_AVAILABLE_AUTO_ON : GYRO_AVAILABLE));
    events.insert(QStringLiteral("ongyroscopetoggle"), QLatin1String(GYRO_TOGGLE));
    events.insert(QStringLiteral("onscenechanged"),
        assembled(SCENE_CHANGED_HEAD, gyroInUse, SCENE_CHANGED_GYRO, SCENE_CHANGED_TAIL));
    events.insert(QStringLiteral("onexit"), assembled(EXIT_HEAD, gyroInUse, EXIT_GYRO, EXIT_TAIL));
    events.insert(QStringLiteral("oninit"), oninit);
    events.insert(QStringLiteral("onuseswebgl"), QLatin1String(USES_WEBGL));
    if (flags.vr) {
        events.insert(QStringLiteral("onentervrmode"), QLatin1String(ENTER_VR_MODE));
        events.insert(QStringLiteral("onexitvrmode"), QLatin1String(EXIT_VR_MODE));
    }
    events.insert(QStringLiteral("onresize"), QLatin1String(RESIZE));

    const DesignHandlers &handlers = DESIGN_HANDLERS[std::size_t(clampedDesign(flags.design))];
    events.insert(QStringLiteral("onplay"), QLatin1String(handlers.onplay));
    events.insert(QStringLiteral("onstop"), QLatin1String(handlers.onstop));
    events.insert(QStringLiteral("onstartaudio"), audioHandler(handlers.audioSets, "play"));
    events.insert(QStringLiteral("onstopaudio"), audioHandler(handlers.audioSets, "pause"));
    controlsRoot.insert(QStringLiteral("events"), events);

    if (flags.littlePlanetIntro)
        appendAction(
            actions, QStringLiteral("littlePlanetIntro"), QLatin1String(LITTLE_PLANET_INTRO));
}

void appendMessageActions(QJsonArray &actions)
{
    appendAction(actions, QStringLiteral("showMessage"), QLatin1String(SHOW_MESSAGE));
    appendAction(actions, QStringLiteral("hideMessage"), QLatin1String(HIDE_MESSAGE));
    appendAction(actions, QStringLiteral("toggleMessage"), QLatin1String(TOGGLE_MESSAGE));
}

} // namespace vantora::params
