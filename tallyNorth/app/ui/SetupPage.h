// One tab of the setup window. A page binds its controls to SETUP columns (the control of
// SETUP_CITY is "m_city"), shows the settings when the window opens and hands back what it
// holds on OK; a page with more to save (the forint's rounding, a new logo) adds it itself.
#pragma once

#include "app/SetupSave.h"
#include "base/Result.h"

#include <QList>
#include <QWidget>

#include <utility>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;
class Setup;

class SetupPage : public QWidget
{
    Q_OBJECT
public:
    explicit SetupPage(QWidget* parent = nullptr) : QWidget(parent) {}

    virtual QString title() const = 0;
    // The help topic of the page's "Help".
    virtual QString helpTopic() const { return QStringLiteral("ProgramKezelese"); }

    // Shows setup; the bound controls are filled here, the rest by the page.
    virtual void load(const Setup& setup);
    // Adds the bound columns and whatever else the page saves.
    virtual void store(SetupChanges& changes) const;
    // Pages that keep values beside the settings record: checked before anything is written,
    // written once the record is saved.
    virtual Result checkOwn() const { return Result::success(); }
    virtual Result saveOwn() { return Result::success(); }

protected:
    void bind(const char* column, QWidget* field);
    QLineEdit* addText(QFormLayout* form, const char* column, const QString& caption,
                       const QString& tip = {});
    QCheckBox* addCheck(QFormLayout* form, const char* column, const QString& caption);
    QSpinBox* addNumber(QFormLayout* form, const char* column, const QString& caption, int min,
                        int max);
    QDoubleSpinBox* addMillimetres(QFormLayout* form, const char* column, const QString& caption);
    QComboBox* addCombo(QFormLayout* form, const char* column, const QString& caption);

private:
    QList<std::pair<const char*, QWidget*>> m_fields;
};
