#include "GuiInteraction.h"

#include "CheckItemsDlg.h"
#include "base/ProgramInfo.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

class DialogProgress : public Progress
{
public:
    DialogProgress(const QString& text, GuiInteraction& owner)
        : m_owner(owner), m_dialog(text, QApplication::translate("GuiInteraction", "Cancel"), 0, 0,
                                   owner.topWindow())
    {
        m_dialog.setObjectName(QStringLiteral("m_progress"));
        m_dialog.setWindowModality(Qt::ApplicationModal);
        m_dialog.setMinimumDuration(300);
        m_dialog.setValue(0);
        m_owner.m_progressWindows.append(&m_dialog);
    }
    ~DialogProgress() override { m_owner.m_progressWindows.removeAll(&m_dialog); }
    void setText(const QString& text) override { m_dialog.setLabelText(text); }
    void setTotal(int total) override { m_dialog.setMaximum(total); }
    void setPos(int pos) override { m_dialog.setValue(pos); }
    bool canceled() override
    {
        QApplication::processEvents();
        return m_dialog.wasCanceled();
    }

private:
    GuiInteraction& m_owner;
    QProgressDialog m_dialog;
};

namespace {

GuiInteraction::MessageFormatter& Formatter()
{
    static GuiInteraction::MessageFormatter formatter;
    return formatter;
}

GuiInteraction::SqlErrorDialog& ErrorDialog()
{
    static GuiInteraction::SqlErrorDialog dialog;
    return dialog;
}

QString Formatted(const QString& text)
{
    return GuiInteraction::formatMessage(text);
}

// A message box at least as wide as its title: a short text ("There is only one database.")
// would otherwise cut the program's name in the title bar.
void KeepTitleVisible(QMessageBox& box)
{
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid)
        return;
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + 160;
    grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Expanding),
                  grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace

QWidget* GuiInteraction::topWindow() const
{
    for (auto it = m_progressWindows.crbegin(); it != m_progressWindows.crend(); ++it) {
        if (*it)
            return *it;
    }
    return m_parent;
}

void GuiInteraction::setMessageFormatter(MessageFormatter formatter)
{
    Formatter() = std::move(formatter);
}

void GuiInteraction::setSqlErrorDialog(SqlErrorDialog dialog)
{
    ErrorDialog() = std::move(dialog);
}

QString GuiInteraction::formatMessage(const QString& text)
{
    if (Formatter())
        return Formatter()(text);
    return text.toHtmlEscaped();
}

void GuiInteraction::message(MessageKind kind, const QString& text)
{
    const QMessageBox::Icon icon = kind == MessageKind::Info          ? QMessageBox::Information
                                   : kind == MessageKind::Exclamation ? QMessageBox::Warning
                                                                      : QMessageBox::Critical;
    QMessageBox box(icon, ProgramName(), Formatted(text), QMessageBox::Ok, topWindow());
    KeepTitleVisible(box);
    box.exec();
}

bool GuiInteraction::askYesNo(const QString& text)
{
    QMessageBox box(QMessageBox::Question, ProgramName(), Formatted(text),
                    QMessageBox::Yes | QMessageBox::No, topWindow());
    KeepTitleVisible(box);
    return box.exec() == QMessageBox::Yes;
}

std::optional<int> GuiInteraction::askNumber(const QString& title, int value)
{
    QDialog dialog(topWindow());
    dialog.setObjectName(QStringLiteral("askNumber"));
    dialog.setWindowTitle(title);
    auto* label = new QLabel(title);
    auto* number = new QSpinBox;
    number->setObjectName(QStringLiteral("m_number"));
    // Copies are printed one by one; more than a few dozen is a typing slip.
    number->setRange(1, 99);
    number->setValue(qBound(1, value, 99));
    number->selectAll();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    layout->addWidget(number);
    layout->addWidget(buttons);
    label->setBuddy(number);
    number->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    number->interpretText();
    return number->value();
}

Interaction::Choice GuiInteraction::choose3(const QString& text, const QString& first,
                                            const QString& second, const QString& third)
{
    QMessageBox box(QMessageBox::Question, ProgramName(), Formatted(text), QMessageBox::NoButton,
                    topWindow());
    KeepTitleVisible(box);
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
    if (ErrorDialog())
        return ErrorDialog()(error, statement, topWindow());
    QMessageBox::critical(topWindow(), ProgramName(),
                          QString(error + u'\n' + statement).toHtmlEscaped());
    return false;
}

std::optional<QList<bool>> GuiInteraction::checkItems(const QString& title,
                                                      const QString& itemCaption,
                                                      const QString& checkCaption,
                                                      const QStringList& items)
{
    CheckItemsDlg dlg(title, itemCaption, checkCaption, items, topWindow());
    if (dlg.exec() != QDialog::Accepted)
        return std::nullopt;
    return dlg.checked();
}

std::unique_ptr<Progress> GuiInteraction::progress(const QString& text)
{
    return std::make_unique<DialogProgress>(text, *this);
}
