#include "model_mark.h"

#include <QLabel>

#include "qt_text.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

constexpr int kSize = 18;

}  // namespace

QWidget* NewModelMark(Presenter& presenter, QComboBox& model) {
    auto* mark = new QLabel;
    mark->setObjectName(QStringLiteral("modelMark"));
    mark->setPixmap(ThemedIcon(QStringLiteral("box-warning")).pixmap(kSize, kSize));
    mark->setAccessibleName(QStringLiteral("Avertissement sur le modèle"));
    mark->hide();
    presenter.OnRefresh([mark, &model, &presenter] {
        const QString doubt = ToQt(presenter.Main().writing.ModelDoubt());
        if (mark->toolTip() == doubt) return;
        mark->setToolTip(doubt);
        mark->setAccessibleDescription(doubt);
        model.setAccessibleDescription(doubt);  // the mark itself takes no focus
        mark->setVisible(!doubt.isEmpty());
    });
    return mark;
}

}  // namespace swiftroll::ui
