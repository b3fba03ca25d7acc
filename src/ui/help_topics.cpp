#include "help_topics.h"

#include <QFile>
#include <QTextStream>

namespace swiftroll::ui {
namespace {

constexpr const char* kTopicProperty = "helpTopic";

}  // namespace

int TopicOf(Tab tab) {
    switch (tab) {
        case Tab::In:
            return Topic::Reading;
        case Tab::Out:
            return Topic::List;
        case Tab::FamilyXref:
        case Tab::Xref:
        case Tab::Family:
            return Topic::Selection;
        case Tab::Kinship:
            return Topic::Kinship;
        case Tab::FormatOptions:
            return Topic::FormatOptions;
        case Tab::LinkOptions:
            return Topic::Drawings;
        case Tab::Options:
            break;
    }
    return Topic::Options;
}

void SetHelpTopic(QWidget& widget, int topic) { widget.setProperty(kTopicProperty, topic); }

int HelpTopicOf(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const int topic = widget->property(kTopicProperty).toInt(); topic > 0) return topic;
    }
    return 0;
}

QString PageOfTopic(const QString& helpFolder, int topic) {
    QFile file(helpFolder + QStringLiteral("/topics.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QTextStream lines(&file);
    const QString head = QString::number(topic) + QLatin1Char(' ');
    for (QString line; lines.readLineInto(&line);) {
        if (line.startsWith(head)) return line.mid(head.size()).trimmed();
    }
    return {};
}

}  // namespace swiftroll::ui
