// The "Help" buttons of every dialog open the help window on their topic through this one link;
// the shell installs the help window at start-up, so no dialog depends on it.
#pragma once

#include <QString>

#include <functional>

class QAbstractButton;
class QDialogButtonBox;
class QWidget;

using HelpOpener = std::function<void(QWidget* parent, const QString& topic)>;

void SetHelpOpener(HelpOpener opener);
// Opens the help window on topic (an id such as "Partnerek").
void OpenHelp(QWidget* parent, const QString& topic);
// Wires a "Help" button, or the Help button of a button box, to topic.
void LinkHelp(QAbstractButton* button, const QString& topic);
void LinkHelp(QDialogButtonBox* buttons, const QString& topic);
