#include "FileCommands.h"

#include "GuiInteraction.h"
#include "MainWindow.h"

#include "app/Backup.h"
#include "app/BaseFolder.h"

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

void RegisterFileCommands(MainWindow& window)
{
    window.setCommand(MainCommand::DoBackup, [&window] { DoBackupCommand(window); });
    window.setCommand(MainCommand::RestoreBackup, [&window] { RestoreBackupCommand(window); });
    window.setCommand(MainCommand::Exit, [&window] { window.close(); });
}
