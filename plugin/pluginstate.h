// Every process-wide item of the library in one place: host, view, flags, blocks, export plan.
#pragma once

#include <vantora/host.h>

#include <QString>

#include <cstdint>

namespace vantora::plugin {

// The start view of the web page, in degrees.
struct View
{
    double pan = 0.0;
    double tilt = 0.0;
    double hfov = 0.0;
    double minhfov = 5.0;
    double maxhfov = 140.0;
};

// The plan of one export, filled by command 0 (and the main dialog) and read by command 1.
struct ExportJob
{
    // Format flag that would select the JSONP form of the parameter file.
    static constexpr std::uint32_t JsonpFormat = 2;

    std::uint32_t displayType = 0; // 0 interactive 3D panorama, else flat 2D zoom image
    std::uint32_t scale = 100;     // percent
    std::uint32_t imageWidth = 0;
    std::uint32_t imageHeight = 0;
    std::uint32_t outputWidth = 0;
    std::uint32_t outputHeight = 0;
    bool prepared = false;
    QString targetPath;
    // The destinations of the viewer files, the user files and the host's image data; all three
    // always hold the same folder, ending in a separator.
    QString viewerFolder;
    QString userFolder;
    QString imageFolder;
    QString baseName;
    QString auxName1; // joined in front of the parameter file name
    QString auxName2; // handed to the file writing as it is
    std::uint64_t imageDataBytes = 0;
    std::uint32_t formatFlags = 0;
};

struct PluginState
{
    HostContext *host = nullptr;
    View view;
    bool viewRestored = false;
    bool settingsRestored = false;
    unsigned char *settingsBlock = nullptr;
    ViewState *viewStateBlock = nullptr;
    std::uint64_t previousDocument = 0;
    std::uint32_t previousWidth = 0;
    std::uint32_t previousHeight = 0;
    std::uint32_t storedScale = 100;
    ExportJob job;
    // The job the open main dialog edits, for the dialogs opened from it.
    ExportJob *dialogJob = nullptr;
};

PluginState &pluginState();

inline HostContext *currentHost()
{
    return pluginState().host;
}
inline View &view()
{
    return pluginState().view;
}
inline ExportJob &exportJob()
{
    return pluginState().job;
}

// Frees the blocks and puts every process-wide item, the viewer settings included, back to its
// state at load time, so that white-box tests start each case from a freshly loaded library.
void resetPluginStateForTests();

} // namespace vantora::plugin
