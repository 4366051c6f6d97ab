// The settings block the host keeps with its project: ViewerSettings in binary, little-endian.
#pragma once

#include "viewersettings.h"

#include <QByteArray>

namespace vantora::settings {

// The version every block is written with; blocks of versions 1 up to it are read.
constexpr int SETTINGS_BLOCK_VERSION = 12;

// The block of `settings` in the current version, its total size in its first four bytes.
QByteArray encodeSettingsBlock(const ViewerSettings &settings);

// Reads the block at `block` into `settings`, which must hold the reset record: fields that the
// block's version lacks keep their reset value or take the value old versions implied. The block's
// first four bytes (its total size) are always read; every further read stays inside that size.
// False, with `settings` untouched, for an unknown version or a block that ends before its last
// field.
bool decodeSettingsBlock(const unsigned char *block, ViewerSettings &settings);

// Command 2: a new block of the process-wide record, kept as the current block until command 3.
// A block still held is not freed: the host may keep it until it asks for it to be freed.
unsigned char *serializeViewerSettings();

// Command 6: resets the process-wide record, then restores it from `block` (may be null). Sets the
// restored flag only when the whole block was read; otherwise the defaults stay.
void restoreViewerSettings(const unsigned char *block);

} // namespace vantora::settings
