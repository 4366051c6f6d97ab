// The plan of one run, made and checked before the first file is written: the pages with their
// pictures, names, extents and hotspots, the location, and an output folder that takes files.
#pragma once

#include "hotspotfile.h"
#include "options.h"
#include "pageframe.h"
#include "sourceimage.h"

#include <QString>

#include <deque>
#include <optional>

namespace vantora::cli {

struct Page
{
    SourceImage source;
    QString name; // base name of the page
    QString path; // absolute
    PageFrame frame;
    PageHotspots hotspots;
};

struct ExportPlan
{
    QString folder;           // where every page goes
    QString existingAncestor; // the folder itself, or its nearest parent that exists now
    // The hotspot records point into their page: a deque never moves its elements.
    std::deque<Page> pages;
    std::optional<Location> location;
};

// False, with one line in `error`, on the first problem found.
bool makeExportPlan(const CliOptions &options, ExportPlan *plan, QString *error);

// Removes the folders between `plan.folder` and its ancestor that existed before the run, when
// they are empty: what a failed run made of the path.
void removeCreatedFolders(const ExportPlan &plan);

} // namespace vantora::cli
