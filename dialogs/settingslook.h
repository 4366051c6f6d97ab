// The look of the viewer settings dialog that its forms cannot say: style sheets filled from the
// palette, the pictures of the design and orientation lists, the colour swatches.
#pragma once

#include <QString>

class QComboBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QToolButton;

namespace vantora::dialogs {

// The category list: transparent rows one and a half font heights high, the palette's highlight.
QString categoryListStyle(const QListWidget *list);

// A checkable group drawn as a tree branch that opens and closes.
QString collapsibleGroupStyle();

// An information panel framed on the dialog palette's alternate base colour.
QString infoPanelStyle(const QLabel *panel);

// The toolbar design pictures on designBox's eight entries, the compass and radar pictures on
// orientationBox's twelve.
void addDesignPictures(QComboBox *designBox);
void addOrientationPictures(QComboBox *orientationBox);

// The button's icon: its icon size filled with 0xRRGGBB `colour`, framed in RGB(48, 48, 48).
void showColourSwatch(QToolButton *button, unsigned int colour);

} // namespace vantora::dialogs
