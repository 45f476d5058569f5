// The Interaction for people: message boxes, questions and progress windows.
#pragma once

#include "base/Interaction.h"

class QWidget;

class GuiInteraction : public Interaction
{
public:
    explicit GuiInteraction(QWidget* parent = nullptr) : m_parent(parent) {}

    void message(MessageKind kind, const QString& text) override;
    bool askYesNo(const QString& text) override;
    Choice choose3(const QString& text, const QString& first, const QString& second,
                   const QString& third) override;
    bool sqlError(const QString& error, const QString& statement) override;
    std::optional<QList<bool>> checkItems(const QString& title, const QString& itemCaption,
                                          const QString& checkCaption,
                                          const QStringList& items) override;
    std::unique_ptr<Progress> progress(const QString& text) override;

private:
    QWidget* m_parent;
};
