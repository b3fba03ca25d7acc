#pragma once

#include <QString>
#include <QWidget>

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
    Options,
    Check,
    AllKin
};
}

/// The topic of a tab of the main window.
int TopicOf(Tab tab);
/// Gives a widget, and what stands in it, a topic of its own.
void SetHelpTopic(QWidget& widget, int topic);
/// The topic of a widget, or else of the nearest one around it that has one; 0 for none.
int HelpTopicOf(const QWidget* widget);
/// Page and anchor of a topic in the folder of the manual, "page.html#anchor"; empty for an unknown one.
QString PageOfTopic(const QString& helpFolder, int topic);

}  // namespace swiftroll::ui
