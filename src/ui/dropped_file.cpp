#include "dropped_file.h"

#include <QUrl>

namespace swiftroll::ui {

QString DroppedFile(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) return url.toLocalFile();
    }
    return {};
}

}  // namespace swiftroll::ui
