# The English translation: vantora_en.ts compiled to a .qm by lrelease and compiled into the
# library as the resource ":/vantora/translations/vantora_en.qm".
find_package(Qt5LinguistTools 5.15 REQUIRED)

set(VANTORA_TS_FILE ${CMAKE_CURRENT_LIST_DIR}/vantora_en.ts)
qt5_add_translation(vantora_qm_files ${VANTORA_TS_FILE})
set(vantora_translations_qrc ${CMAKE_CURRENT_BINARY_DIR}/vantora_translations.qrc)
file(WRITE ${vantora_translations_qrc}.in
  "<!DOCTYPE RCC><RCC version=\"1.0\">\n<qresource prefix=\"/vantora/translations\">\n"
  "    <file alias=\"vantora_en.qm\">${vantora_qm_files}</file>\n</qresource>\n</RCC>\n")
configure_file(${vantora_translations_qrc}.in ${vantora_translations_qrc} COPYONLY)
# Not through AUTORCC: the resource lists a file that the build makes, and this form depends on it.
qt5_add_resources(VANTORA_TRANSLATION_SOURCES ${vantora_translations_qrc})

# The folders whose texts pass through the translation lookup, for the completeness check.
set(VANTORA_TRANSLATED_FOLDERS dialogs plugin settings viewerparams viewercontrols)

