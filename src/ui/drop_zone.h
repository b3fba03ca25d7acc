#pragma once

#include <QWidget>
#include <functional>

namespace swiftroll::ui {

/// A framed place that takes a file which is dropped on it.
class DropZone : public QWidget {
  public:
    explicit DropZone(std::function<void(const QString& file)> onFile) : onFile_(std::move(onFile)) {
        setAcceptDrops(true);
    }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void SetOffered(bool isOffered);

    std::function<void(const QString& file)> onFile_;
    bool isOffered_ = false;  // a file is held over it
};

}  // namespace swiftroll::ui
