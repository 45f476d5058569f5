// The program's date field: typed and shown as 2024.03.05., may be left empty, with a calendar
// to pick from (the button at its end, or Alt+Down / F4).
#pragma once

#include <QDate>
#include <QLineEdit>

class QCalendarWidget;

class DateEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged USER true)
public:
    explicit DateEdit(QWidget* parent = nullptr);

    // The typed date; invalid when the field is empty or the text is not a date.
    QDate date() const;
    // An invalid date empties the field.
    void setDate(const QDate& date);
    // Empty or a readable date.
    bool isValidInput() const;

    void showCalendar();

Q_SIGNALS:
    void dateChanged(const QDate& date);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void tidyText();
    void textEdited();

    QCalendarWidget* m_calendar = nullptr;
    QDate m_lastDate;
};
