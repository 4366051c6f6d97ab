// Restores settings blocks of arbitrary bytes. The block's size word is the reader's only bound,
// so it is kept within the bytes given; the copy is exactly that long, so that the address
// sanitizer catches any read past it.
#include "settings/settingsblock.h"

#include <QtEndian>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using namespace vantora::settings;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 4 || size > 1u << 20)
        return 0;
    const auto block = std::make_unique<unsigned char[]>(size);
    std::memcpy(block.get(), data, size);
    if (qFromLittleEndian<quint32>(block.get()) > size)
        qToLittleEndian(quint32(size), block.get());

    ViewerSettings settings;
    if (!decodeSettingsBlock(block.get(), settings))
        return 0;
    // What was read is written back and read again unchanged.
    const QByteArray written = encodeSettingsBlock(settings);
    ViewerSettings again;
    if (!decodeSettingsBlock(reinterpret_cast<const unsigned char *>(written.constData()), again)
        || encodeSettingsBlock(again) != written)
        std::abort();
    return 0;
}
