// The help topics: their tree in the order the help window shows it, their addresses and their
// Hungarian QTF texts, which are resources of the program.
#pragma once

#include <QList>
#include <QString>

struct HelpTopic
{
    QString id;    // empty for a heading without a text of its own
    QString title; // as the tree shows it
};

// The help window's tree, in its order.
const QList<HelpTopic>& HelpTopicTree();

// "topic://tallyNorth/app/ID$hu-hu"
QString HelpTopicAddress(const QString& id);
// The id of such an address; the text itself is also taken as an id.
QString HelpTopicId(const QString& address);

// The topic's QTF text without its title line; empty for an unknown id.
QString HelpTopicQtf(const QString& id);
QString HelpTopicTitle(const QString& id);

// The about box's text: the "AboutTemplate" topic with its fields filled in.
QString AboutQtf();
QString ProgramHomepage();
QString ProgramEmail();
