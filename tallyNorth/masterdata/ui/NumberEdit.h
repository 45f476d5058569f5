// A text field for an amount, a percent or a count that may also be left empty (NULL).
#pragma once

#include <QLineEdit>
#include <QVariant>

#include <optional>

class NumberEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit NumberEdit(QWidget* parent = nullptr);

    // Whole numbers only (days, counts).
    void setWholeNumbers(bool whole);
    // The typed number; none when empty or unreadable.
    std::optional<double> value() const;
    // The typed number, NULL when empty.
    QVariant variant() const;
    void setValue(const QVariant& value);
    void setValue(std::optional<double> value);

    // Reads "1234,5", "1234.5" and "1 234,5" alike.
    static std::optional<double> parse(const QString& text);
    // Shortest text without group separators, in the user's decimal separator.
    static QString format(double value);

private:
    bool m_whole = false;
};
