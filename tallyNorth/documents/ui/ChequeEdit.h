// "Csekk letrehozasa/szerkesztese": one cheque's payer, invoice number, amount (with its words)
// and the two texts. Saving asks about a payer missing from, or differing from, the basic data
// (the order's partner question); printing saves first and marks the cheque printed.
#pragma once

#include "base/ui/GuiInteraction.h"
#include "orders/ChequeStore.h"

#include <QDialog>

#include <memory>

class Interaction;

namespace Ui {
class ChequeEditLayout;
}

class ChequeEdit : public QDialog
{
    Q_OBJECT
public:
    explicit ChequeEdit(QWidget* parent = nullptr);
    ~ChequeEdit() override;

    // A stored cheque (false with the message shown when it has gone) or, for 0, a new one.
    bool load(qint64 id);
    void setValues(const Cheque& cheque);
    // The cheque as typed; an amount that can't be read gives 0.
    Cheque values() const;
    qint64 chequeId() const { return m_cheque.id; }

    // Where the questions and messages go; the tests script it. Default: message boxes.
    void setInteraction(Interaction* interaction) { m_interaction.set(interaction); }

    // The partner question, then the store; false (message shown) when nothing was saved.
    bool save();
    // "Later": saved without printing, the dialog closes.
    void saveLater();
    void print();
    void preview();

    // Opens the dialog on a cheque (0: a new one); true when it was saved.
    static bool edit(qint64 id, QWidget* parent);

private:
    Interaction& interaction() { return m_interaction.get(); }
    void partnerPicked(qint64 id);
    void amountChanged();

    std::unique_ptr<Ui::ChequeEditLayout> m_ui;
    Cheque m_cheque;
    // The partner last picked in the finder, whose code the cheque copies.
    std::optional<qint64> m_pickedId;
    QString m_pickedCode;
    bool m_saved = false;
    WindowInteraction m_interaction{this};
};
