// The list windows and edit dialogs of the master-data tables, for the main window's menus
// and tabs and for the "..." buttons of other dialogs.
#pragma once

#include "BrowseInfo.h"

#include "masterdata/MasterTables.h"

class ListTab;
class QComboBox;
class QPushButton;

const BrowseInfo& MasterBrowseInfo(MasterTable table);

// The list window for keeping the table.
void OpenMasterBrowse(MasterTable table, QWidget* parent);
// The list opened for choosing: the chosen row's id, none when cancelled.
std::optional<qint64> ChooseMasterRow(MasterTable table, QWidget* parent);
// The edit dialog on a row, or on a new row with presets (for example a webshop code); the
// saved row's id, none when cancelled or when the row is gone.
std::optional<qint64> EditMasterRow(MasterTable table, QWidget* parent, std::optional<qint64> id,
                                    const Record& presets = {});
// The "Partners" and "Products" pages of the main window.
ListTab* CreateMasterTab(MasterTable table, QWidget* parent);

// A "Languages..."-style button: opens the table's list for choosing, then refills combo and
// selects the chosen row.
void LinkChooser(QPushButton* button, QComboBox* combo, MasterTable table, bool allowEmpty);
// Fills a combo with the table's rows (an empty first item when allowEmpty).
void FillMasterCombo(QComboBox* combo, MasterTable table, bool allowEmpty);
