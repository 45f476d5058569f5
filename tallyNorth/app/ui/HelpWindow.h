// "Vantrell Számlázó Súgó": the topic tree beside the chosen topic's text. One window serves the
// whole program; a dialog's "Help" opens it on the dialog's topic.
#pragma once

#include <QDialog>

#include <memory>

class QTextBrowser;
class QTextDocument;
class QTreeWidget;

class HelpWindow : public QDialog
{
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent = nullptr);
    ~HelpWindow() override;

    // Shows the topic (an id or its topic:// address); false for an unknown one.
    bool showTopic(const QString& topic);
    QString currentTopic() const { return m_current; }
    QTreeWidget* tree() const { return m_tree; }
    QTextBrowser* text() const { return m_text; }

    // Opens the program's help window on topic; modal while a dialog is open, so that it can
    // be used from there.
    static void open(QWidget* parent, const QString& topic);
    // The about box, from its template.
    static void about(QWidget* parent);

private:
    QTreeWidget* m_tree = nullptr;
    QTextBrowser* m_text = nullptr;
    std::unique_ptr<QTextDocument> m_document;
    QString m_current;
};
