// The language of the library's texts: English for a host whose default locale is English,
// the German source texts for every other host.
#pragma once

namespace vantora::plugin {

// Installs the compiled-in English translator into the running application when QLocale()
// is English and removes it otherwise. Cheap; called before any text is shown.
void followHostLanguage();

} // namespace vantora::plugin
