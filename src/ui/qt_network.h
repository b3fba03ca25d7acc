#pragma once

#include <QNetworkAccessManager>

#include "presenter.h"

namespace swiftroll::ui {

/// Fetches files over HTTP(S). The window stays alive meanwhile; Escape, or the end of the program, ends the
/// wait.
class QtNetwork : public Network {
  public:
    void Attach(Presenter& presenter) { presenter_ = &presenter; }
    void Download(TextView address, TextView localFile) override;

  private:
    Presenter* presenter_ = nullptr;
    std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace swiftroll::ui
