#include "pageframe.h"

#include <algorithm>

namespace vantora::cli {

PageFrame frameFor(
    int width, int height, bool flat, std::optional<double> hextent, std::optional<double> vextent)
{
    PageFrame frame;
    frame.flat = flat;
    const double ratio = height > 0 ? double(width) / height : 2.0;
    if (hextent && vextent) {
        frame.hextent = *hextent;
        frame.vextent = *vextent;
    } else if (hextent) {
        frame.hextent = *hextent;
        frame.vextent = std::min(180.0, *hextent / ratio);
    } else if (vextent) {
        frame.vextent = *vextent;
        frame.hextent = std::min(360.0, *vextent * ratio);
    } else if (ratio >= 2.0) {
        frame.hextent = 360.0;
        frame.vextent = 360.0 / ratio;
    } else {
        frame.vextent = 180.0;
        frame.hextent = 180.0 * ratio;
    }
    return frame;
}

} // namespace vantora::cli
