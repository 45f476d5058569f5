#include "OrderLabelTranslationBrowse.h"

#include "base/Interaction.h"
#include "base/ui/CommandHost.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/HelpLink.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

OrderLabelTranslationBrowse::OrderLabelTranslationBrowse(Interaction& interaction, QWidget* parent)
    : QDialog(parent), m_interaction(interaction)
{
    setObjectName(QStringLiteral("OrderLabelTranslationLayout"));
    setWindowTitle(tr("Invoice Label Translations"));
    m_table = new QTableWidget(this);
    m_table->setObjectName(QStringLiteral("m_list"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &OrderLabelTranslationBrowse::editRow);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                         QDialogButtonBox::Help);
    QPushButton* edit = buttons->addButton(tr("&Edit"), QDialogButtonBox::ActionRole);
    edit->setObjectName(QStringLiteral("m_edit"));
    connect(edit, &QPushButton::clicked, this, &OrderLabelTranslationBrowse::editRow);
    connect(buttons, &QDialogButtonBox::accepted, this, &OrderLabelTranslationBrowse::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &OrderLabelTranslationBrowse::reject);
    LinkHelp(buttons, QStringLiteral("Szamlakeszites"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addWidget(buttons);
    resize(760, 520);
}

bool OrderLabelTranslationBrowse::load()
{
    QList<std::pair<int, QString>> foreign;
    Result r = m_labels.load();
    if (r)
        r = LabelTranslations::languages(foreign);
    if (!r) {
        m_interaction.error(r.message());
        return false;
    }
    m_languages = {{LabelTranslations::Hungarian, QStringLiteral("Magyar")}};
    m_languages += foreign;

    QStringList headers{tr("Key")};
    for (const auto& [id, name] : std::as_const(m_languages))
        headers << name;
    m_table->setColumnCount(int(headers.size()));
    m_table->setHorizontalHeaderLabels(headers);
    const QStringList keys = m_labels.keys();
    m_table->setRowCount(int(keys.size()));
    for (int row = 0; row < keys.size(); ++row) {
        m_table->setItem(row, 0, new QTableWidgetItem(keys[row]));
        showRow(row);
    }
    m_table->resizeColumnsToContents();
    if (!keys.isEmpty())
        m_table->selectRow(0);
    return true;
}

void OrderLabelTranslationBrowse::showRow(int row)
{
    const QString key = m_table->item(row, 0)->text();
    for (int column = 0; column < m_languages.size(); ++column)
        m_table->setItem(row, column + 1,
                         new QTableWidgetItem(m_labels.get(key, m_languages[column].first)));
}

void OrderLabelTranslationBrowse::setRowTexts(int row, const QStringList& texts)
{
    const QString key = m_table->item(row, 0)->text();
    // The Hungarian text is the shipped one; it is shown, never changed here.
    for (int column = 1; column < m_languages.size() && column < texts.size(); ++column)
        m_labels.set(key, m_languages[column].first, texts[column]);
    showRow(row);
}

void OrderLabelTranslationBrowse::editRow()
{
    const int row = m_table->currentRow();
    if (row < 0 || m_table->selectionModel()->selectedRows().isEmpty()) {
        m_interaction.exclamation(tr("Select a row to edit."));
        return;
    }
    QDialog dialog(this);
    dialog.setObjectName(QStringLiteral("labelEdit"));
    dialog.setWindowTitle(tr("Edit"));
    auto* form = new QFormLayout;
    QList<QLineEdit*> fields;
    for (int column = 0; column < m_languages.size(); ++column) {
        auto* field = new QLineEdit(m_table->item(row, column + 1)->text());
        field->setObjectName(QStringLiteral("LANG_%1").arg(m_languages[column].first));
        field->setReadOnly(column == 0);
        form->addRow(m_languages[column].second, field);
        fields << field;
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    auto* keyField = new QLineEdit(m_table->item(row, 0)->text());
    keyField->setReadOnly(true);
    form->insertRow(0, tr("Key"), keyField);
    layout->addLayout(form);
    layout->addWidget(buttons);
    if (fields.size() > 1)
        fields[1]->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return;
    QStringList texts;
    for (QLineEdit* field : std::as_const(fields))
        texts << field->text();
    setRowTexts(row, texts);
}

void OrderLabelTranslationBrowse::accept()
{
    const std::unique_ptr<Progress> progress = m_interaction.progress(tr("Saving data"));
    if (Result r = m_labels.saveForeign(); !r) {
        m_interaction.error(r.message());
        return;
    }
    // The next invoice is rendered with the saved labels.
    LabelTranslations::current() = m_labels;
    QDialog::accept();
}

void RegisterLabelTranslationCommand(CommandHost& host)
{
    host.setCommand(MainCommand::LabelTranslations, [&host] {
        GuiInteraction interaction(host.hostWidget());
        OrderLabelTranslationBrowse browse(interaction, host.hostWidget());
        if (browse.load())
            browse.exec();
    });
}
