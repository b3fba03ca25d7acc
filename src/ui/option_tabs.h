#pragma once

#include <QWidget>

#include "binder.h"

namespace swiftroll::ui {

/// The pages of the options: formats of lists, drawings of kinship, and the rest.
QWidget* BuildFormatTab(frmMain& main, Binder& binder, Presenter& presenter);
QWidget* BuildLinksTab(frmMain& main, Binder& binder, Presenter& presenter);
QWidget* BuildOptionsTab(frmMain& main, Binder& binder);

}  // namespace swiftroll::ui
