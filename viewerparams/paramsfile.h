// The parameter file: the panorama's view, limits, hotspots, title, logo, sound, data and includes.
#pragma once

#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <vantora/host.h>

#include <QJsonObject>
#include <QString>

#include <cstdint>

namespace vantora::params {

// What the parameter file is built from. The export run fills it from the process-wide state;
// tests fill it directly.
struct ParamsInput
{
    HostContext *host = nullptr; // never null when building
    // The controls file stores the clamped toolbar design back into it.
    settings::ViewerSettings *settings = nullptr;
    plugin::View view;
    bool flatMode = false;         // host's flat-image mark or the flat display type
    std::uint32_t outputWidth = 0; // ExportJob output size, for the tile writer and tilt rule
    std::uint32_t outputHeight = 0;
    std::uint32_t scalePercent = 100;
};

// The whole root object ("version", "control", "node", "include", ...) and the status of the
// host's tile writer (0 when the host has none). Calls the host's tile writer, resource exporter
// and location filler, and exports hotspot bitmaps into outputFolder (created when missing).
struct ParamsDocument
{
    QJsonObject root;
    std::uint32_t tileStatus = 0;
};
ParamsDocument buildViewerParams(const ParamsInput &input, const QString &outputFolder,
    const QString &paramsFileName, const QString &controlsFileName, const QString &galleryFileName);

// Builds the document and writes it to outputFolder + paramsFileName. Returns the tile writer's
// status, or 0 when the file cannot be written; the export run takes non-zero as success.
std::uint32_t writeViewerParams(const ParamsInput &input, const QString &outputFolder,
    const QString &paramsFileName, const QString &controlsFileName, const QString &galleryFileName);

} // namespace vantora::params
