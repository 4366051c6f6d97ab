// The product's public identity, shared by everything that points the user at it.
#pragma once

namespace vantora {

// The product page that the viewer's "About" menu item opens.
constexpr char PRODUCT_WEB_SITE[] = "https://www.vantora.com/web-export/";

} // namespace vantora
