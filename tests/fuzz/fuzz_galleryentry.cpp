// Reads arbitrary bytes as a viewer file of the output folder and checks the quick reader against
// the plain one: drop carriage returns, check the prefix, close a dangling member list, parse the
// whole text. Both must take the same files with the same description and location, and the head
// check must never turn away a file the plain reading takes.
#include "viewerparams/galleryentry.h"

#include <cstdint>
#include <cstdlib>

using namespace vantora::params;

namespace {

std::optional<PanoramaSummary> plainReading(QByteArray text)
{
    const QByteArray prefix = QByteArrayLiteral("VantoraViewerParams = ");
    text.replace('\r', QByteArray());
    if (!text.startsWith(prefix))
        return std::nullopt;
    if (text.endsWith(",\n}\n}"))
        text.append("\n}\n}");
    return panoramaFromDocument(QJsonDocument::fromJson(text.mid(prefix.size())));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 1u << 20)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const std::optional<PanoramaSummary> quick = panoramaFromBytes(bytes);
    const std::optional<PanoramaSummary> plain = plainReading(bytes);
    if (quick.has_value() != plain.has_value())
        std::abort();
    if (quick && (quick->text != plain->text || quick->location != plain->location))
        std::abort();
    // Any head of a file that is taken shows nothing against it.
    const int headSize = size ? int(data[0]) % (int(size) + 1) : 0;
    if (plain && (!mayBeParamsFile(bytes.left(headSize), false) || !mayBeParamsFile(bytes, true)))
        std::abort();
    return 0;
}
