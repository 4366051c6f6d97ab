// The pages of the viewer settings dialog, one form each, so that no form holds all eighty
// controls. The dialog reaches the controls through the pages' public form members.
#pragma once

#include "ui_audiopage.h"
#include "ui_autoplaypage.h"
#include "ui_contextmenupage.h"
#include "ui_controlpage.h"
#include "ui_gallerypage.h"
#include "ui_generalpage.h"
#include "ui_infopage.h"
#include "ui_mappage.h"
#include "ui_orientationpage.h"
#include "ui_toolbarpage.h"
#include "ui_vrpage.h"

#include <QWidget>

namespace vantora::dialogs {

class GeneralPage : public QWidget, public Ui::GeneralPage
{
public:
    explicit GeneralPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class ToolbarPage : public QWidget, public Ui::ToolbarPage
{
public:
    explicit ToolbarPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class AudioPage : public QWidget, public Ui::AudioPage
{
public:
    explicit AudioPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class InfoPage : public QWidget, public Ui::InfoPage
{
public:
    explicit InfoPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class AutoPlayPage : public QWidget, public Ui::AutoPlayPage
{
public:
    explicit AutoPlayPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class ControlPage : public QWidget, public Ui::ControlPage
{
public:
    explicit ControlPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class ContextMenuPage : public QWidget, public Ui::ContextMenuPage
{
public:
    explicit ContextMenuPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class GalleryPage : public QWidget, public Ui::GalleryPage
{
public:
    explicit GalleryPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class OrientationPage : public QWidget, public Ui::OrientationPage
{
public:
    explicit OrientationPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class MapPage : public QWidget, public Ui::MapPage
{
public:
    explicit MapPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

class VrPage : public QWidget, public Ui::VrPage
{
public:
    explicit VrPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setupUi(this);
    }
};

} // namespace vantora::dialogs
