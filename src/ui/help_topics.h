#pragma once

#include <QString>

#include "app/application.h"

namespace swiftroll::ui {

/// Numbers of the topics of the manual, as help/topics.txt lists them.
namespace Topic {
enum : int {
    Contents = 1,
    Reading,
    List,
    Models,
    Kinship,
    Drawings,
    Extract,
    Selection,
    Find,
    Settings,
    CommandLine,
    Messages,
    Preview,
    Updates,
    Favorites,
    FormatOptions,
    Options
};
}

/// The topic of a tab of the main window.
int TopicOf(Tab tab);
/// Page and anchor of a topic in the folder of the manual, "page.html#anchor"; empty for an unknown one.
QString PageOfTopic(const QString& helpFolder, int topic);

}  // namespace swiftroll::ui
