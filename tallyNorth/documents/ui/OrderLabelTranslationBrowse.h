// "Invoice Label Translations": the invoice labels with one column per language; the foreign
// texts are edited here, the Hungarian ones are shown only. OK saves and makes the program's
// labels the saved ones.
#pragma once

#include "documents/LabelTranslations.h"

#include <QDialog>

class CommandHost;
class Interaction;
class QTableWidget;

class OrderLabelTranslationBrowse : public QDialog
{
    Q_OBJECT
public:
    OrderLabelTranslationBrowse(Interaction& interaction, QWidget* parent = nullptr);

    // Reads the labels and the languages; false when either failed (already shown).
    bool load();
    const LabelTranslations& labels() const { return m_labels; }
    QTableWidget* table() const { return m_table; }

    // Opens the selected row's texts in the "Edit" dialog.
    void editRow();
    // Sets the selected row's texts as the "Edit" dialog would (one per language column).
    void setRowTexts(int row, const QStringList& texts);

    void accept() override;

private:
    void showRow(int row);

    Interaction& m_interaction;
    LabelTranslations m_labels;
    QList<std::pair<int, QString>> m_languages; // the columns after the key, Hungarian first
    QTableWidget* m_table = nullptr;
};

// Registers the "Invoice Label Translations" command.
void RegisterLabelTranslationCommand(CommandHost& host);
