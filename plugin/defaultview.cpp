#include "defaultview.h"

#include <algorithm>
#include <cmath>

namespace vantora::plugin {

View storedView(const HostContext &host)
{
    return View {host.viewPan, host.viewTilt, host.viewHfov, host.viewMinHfov, host.viewMaxHfov};
}

void storeView(HostContext &host, const View &view)
{
    host.viewPan = view.pan;
    host.viewTilt = view.tilt;
    host.viewHfov = view.hfov;
    host.viewMinHfov = view.minhfov;
    host.viewMaxHfov = view.maxhfov;
}

View defaultViewFromHost(const HostContext &host)
{
    if (host.viewHfov > 0.0)
        return storedView(host);
    View view;
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
