#include "GuiInteraction.h"

#include "CheckItemsDlg.h"
#include "SqlErrorDlg.h"
#include "app/ProgramInfo.h"
#include "documents/MessageText.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

namespace {

class DialogProgress : public Progress
{
public:
    DialogProgress(const QString& text, QWidget* parent)
        : m_dialog(text, QApplication::translate("GuiInteraction", "Cancel"), 0, 0, parent)
    {
        m_dialog.setWindowModality(Qt::ApplicationModal);
        m_dialog.setMinimumDuration(300);
        m_dialog.setValue(0);
    }
    void setText(const QString& text) override { m_dialog.setLabelText(text); }
    void setTotal(int total) override { m_dialog.setMaximum(total); }
    void setPos(int pos) override { m_dialog.setValue(pos); }
    bool canceled() override
    {
        QApplication::processEvents();
        return m_dialog.wasCanceled();
    }

private:
    QProgressDialog m_dialog;
};

} // namespace

void GuiInteraction::message(MessageKind kind, const QString& text)
{
    const QString title = ProgramName();
    switch (kind) {
    case MessageKind::Info:
        QMessageBox::information(m_parent, title, MessageRichText(text));
        break;
    case MessageKind::Exclamation:
        QMessageBox::warning(m_parent, title, MessageRichText(text));
        break;
    case MessageKind::Error:
        QMessageBox::critical(m_parent, title, MessageRichText(text));
        break;
    }
}

bool GuiInteraction::askYesNo(const QString& text)
{
    return QMessageBox::question(m_parent, ProgramName(), MessageRichText(text),
                                 QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

Interaction::Choice GuiInteraction::choose3(const QString& text, const QString& first,
                                            const QString& second, const QString& third)
{
    QMessageBox box(QMessageBox::Question, ProgramName(), MessageRichText(text), QMessageBox::NoButton,
                    m_parent);
    QAbstractButton* a = box.addButton(first, QMessageBox::AcceptRole);
    QAbstractButton* b = box.addButton(second, QMessageBox::DestructiveRole);
    box.addButton(third, QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == a)
        return Choice::First;
    if (box.clickedButton() == b)
        return Choice::Second;
    return Choice::Third;
}

bool GuiInteraction::sqlError(const QString& error, const QString& statement)
{
    return SqlErrorDlg::askRetry(error, statement, m_parent);
}

std::optional<QList<bool>> GuiInteraction::checkItems(const QString& title,
                                                      const QString& itemCaption,
                                                      const QString& checkCaption,
                                                      const QStringList& items)
{
    CheckItemsDlg dlg(title, itemCaption, checkCaption, items, m_parent);
    if (dlg.exec() != QDialog::Accepted)
        return std::nullopt;
    return dlg.checked();
}

std::unique_ptr<Progress> GuiInteraction::progress(const QString& text)
{
    return std::make_unique<DialogProgress>(text, m_parent);
}
