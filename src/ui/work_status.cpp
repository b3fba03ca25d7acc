#include "work_status.h"

#include <QHBoxLayout>

#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr int kProgressSteps = 1000;
constexpr int kProgressWidth = 160;

}  // namespace

WorkStatus::WorkStatus(Presenter& presenter)
    : presenter_(presenter), progress_(new QProgressBar), stop_(new QPushButton) {
    const Command& command = presenter.Main().cmdStop;
    setObjectName(QStringLiteral("workStatus"));
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setAccessibleName(QStringLiteral("Progression"));
    progress_->setRange(0, kProgressSteps);
    progress_->setFixedWidth(kProgressWidth);
    progress_->setFormat(QStringLiteral("%p %"));
    stop_->setObjectName(ToQt(command.Name()));
    stop_->setText(ToQt(command.Caption));
    stop_->setToolTip(ToQt(command.Tip));
    stop_->setAccessibleDescription(ToQt(command.Tip));
    // The keyboard has Escape, and a focus that goes with the button would go astray.
    stop_->setFocusPolicy(Qt::NoFocus);
    // The status bar is as high without it, and its place beside the progress stays free.
    QSizePolicy policy = stop_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    policy.setVerticalPolicy(QSizePolicy::Ignored);
    stop_->setSizePolicy(policy);
    connect(stop_, &QPushButton::clicked, this, [this, &command] { presenter_.Click(command); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    row->addWidget(progress_);
    row->addWidget(stop_);
    hide();
}

void WorkStatus::ShowWork() {
    const frmMain& main = presenter_.Main();
    const bool isWorking = main.bWaitCursor || main.bCanStop;
    stop_->setVisible(main.bCanStop);
    setVisible(isWorking);
    if (!isWorking) return;
    // A bar without a range moves by itself.
    const int steps = main.ProgressBar1.IsBusy() ? 0 : kProgressSteps;
    if (progress_->maximum() != steps) progress_->setRange(0, steps);
    progress_->setTextVisible(steps > 0);
    progress_->setValue(static_cast<int>(main.ProgressBar1.Value() * steps / 100));
}

}  // namespace swiftroll::ui
