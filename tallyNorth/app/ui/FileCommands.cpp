#include "FileCommands.h"

#include "MainWindow.h"
#include "NewCompanyDlg.h"
#include "SetupWindow.h"
#include "Startup.h"
#include "base/ui/GuiInteraction.h"

#include "app/Backup.h"
#include "app/BaseFolder.h"
#include "app/CompanyChoice.h"
#include "base/Database.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace {

QString BackupFilter()
{
    return QCoreApplication::translate("FileCommands", "Database backup files (*.dbk)");
}

// Both dialogs open in the backup folder, which is made when missing.
QString ChooseBackupFile(MainWindow& window, QFileDialog::AcceptMode mode, const QString& proposed)
{
    const QString folder = BaseFolder::backupFolder();
    QDir().mkpath(folder);
    QFileDialog dialog(&window, {}, folder, BackupFilter());
    dialog.setObjectName(QStringLiteral("m_backup_file_dialog"));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile
                                                       : QFileDialog::ExistingFile);
    dialog.setWindowTitle(mode == QFileDialog::AcceptSave
                              ? QCoreApplication::translate("FileCommands", "Do backup")
                              : QCoreApplication::translate("FileCommands", "Restore backup"));
    dialog.setDefaultSuffix(QStringLiteral("dbk"));
    // Room for the folder list and the file names with their dates.
    dialog.resize(760, 480);
    if (!proposed.isEmpty())
        dialog.selectFile(proposed);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

} // namespace

void DoBackupCommand(MainWindow& window)
{
    const QString database = window.companyFile();
    if (database.isEmpty())
        return;
    const QString target =
        ChooseBackupFile(window, QFileDialog::AcceptSave, BackupFileName(database));
    if (target.isEmpty())
        return;
    GuiInteraction interaction(&window);
    DoBackup(database, target, interaction);
    window.companyChanged();
}

void RestoreBackupCommand(MainWindow& window)
{
    const QString database = window.companyFile();
    GuiInteraction interaction(&window);
    if (database.isEmpty() || !ConfirmRestore(interaction))
        return;
    const QString backup = ChooseBackupFile(window, QFileDialog::AcceptOpen, {});
    if (backup.isEmpty())
        return;
    RestoreBackup(database, backup, interaction);
    window.companyChanged();
}

namespace {

// The window follows the session when it now is on another file (or on none, after a failure).
void FollowCompany(MainWindow& window, bool changed)
{
    if (changed || Database::path() != window.companyFile())
        window.companyChanged();
}

} // namespace

void ChangeCompanyCommand(MainWindow& window)
{
    FollowCompany(window, ChangeCompany(&window));
}

void NewCompanyCommand(MainWindow& window)
{
    const QString path = NewCompanyDlg::createCompany(BaseFolder::dbFolder(), &window);
    if (path.isEmpty())
        return;
    GuiInteraction interaction(&window);
    if (!interaction.askYesNo(QCoreApplication::translate(
            "FileCommands",
            "The new company database has been created.&Do you want to work with it now?")))
        return;
    FollowCompany(window, SwitchCompany(path, interaction));
}

void RegisterFileCommands(MainWindow& window)
{
    window.setCommand(MainCommand::ChangeCompany, [&window] { ChangeCompanyCommand(window); });
    window.setCommand(MainCommand::NewCompany, [&window] { NewCompanyCommand(window); });
    window.setCommand(MainCommand::DoBackup, [&window] { DoBackupCommand(window); });
    window.setCommand(MainCommand::RestoreBackup, [&window] { RestoreBackupCommand(window); });
    window.setCommand(MainCommand::Exit, [&window] { window.close(); });
    // Saved settings apply at once: title, Enter as Tab, the lists' loading rules.
    window.setCommand(MainCommand::Setup, [&window] {
        if (SetupWindow::edit(&window))
            window.companyChanged();
    });
}
