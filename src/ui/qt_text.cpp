#include "qt_text.h"

#include "text/code_page.h"

namespace swiftroll::ui {

QString ToQt(TextView text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    QChar* out = result.data();
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        *out++ = byte >= 0x80 && byte < 0xA0 ? QChar(kCodePageC1[byte - 0x80]) : QChar(ushort{byte});
    }
    return result;
}

QString EditableToQt(TextView text) { return QString::fromStdString(FileNameFromText(text)); }

Text FromQt(const QString& text) { return FileNameToText(text.toStdString()); }

}  // namespace swiftroll::ui
