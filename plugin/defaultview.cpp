#include "defaultview.h"

#include <algorithm>
#include <cmath>

namespace vantora::plugin {

View defaultViewFromHost(const HostContext &host)
{
    View view;
    if (host.viewHfov > 0.0) {
        view.pan = host.viewPan;
        view.tilt = host.viewTilt;
        view.hfov = host.viewHfov;
        view.minhfov = host.viewMinHfov;
        view.maxhfov = host.viewMaxHfov;
        return view;
    }
    // No stored view: show 90 % of what fits a 5:3 window, never wider than 90 degrees, looking
    // at the middle of the horizontal extent.
    const double horizontal = std::fabs(host.endPan - host.startPan);
    const double vertical = std::fabs(host.lowerEdgeTilt - host.upperEdgeTilt);
    view.minhfov = 5.0;
    view.maxhfov = 140.0;
    view.hfov = std::min(0.9 * std::min(vertical * 1.6666666666666667, horizontal), 90.0);
    view.pan = horizontal * 0.5 + host.startPan;
    view.tilt = 0.0;
    return view;
}

} // namespace vantora::plugin
