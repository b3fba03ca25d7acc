#pragma once

#include <QComboBox>
#include <QWidget>

#include "presenter.h"

namespace swiftroll::ui {

/// An amber sign that stands beside the model while its name does not go with the format, and tells why.
QWidget* NewModelMark(Presenter& presenter, QComboBox& model);

}  // namespace swiftroll::ui
