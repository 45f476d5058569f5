// Edit dialogs bind their controls to columns by name: the control of PARTNER_MAIL_ZIP is
// "m_mail_zip" (the column without its table prefix, lower case).
#pragma once

#include "masterdata/TableStore.h"

#include <QString>
#include <QVariant>

class QComboBox;
class QWidget;

QString FieldName(const char* column);
// The control of column inside form, or null when the form has none.
QWidget* FindField(QWidget* form, const char* column);

// Reads and writes a control by its kind: text fields, number fields, check boxes (flags
// "1"/"0"), spin boxes and combo boxes (the item data).
QVariant FieldValue(const QWidget* field);
void SetFieldValue(QWidget* field, const QVariant& value);

// Hides a control with its label (the label whose buddy it is).
void SetFieldVisible(QWidget* field, bool visible);
// Brings the tab page holding field forward and gives it the focus.
void RevealField(QWidget* field);

// Fills combo with the rows of store (name, id as item data), keeping the chosen id; an empty
// first item stands for NULL when allowEmpty.
Result FillCombo(QComboBox* combo, const TableStore& store, bool allowEmpty);
void SelectComboId(QComboBox* combo, const QVariant& id);
