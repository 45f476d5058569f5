#include "NumberEdit.h"

#include <QLocale>
#include <QRegularExpressionValidator>

#include <cmath>

NumberEdit::NumberEdit(QWidget* parent) : QLineEdit(parent)
{
    setWholeNumbers(false);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void NumberEdit::setWholeNumbers(bool whole)
{
    m_whole = whole;
    const QString pattern =
        whole ? QStringLiteral("-?[0-9 ]*") : QStringLiteral("-?[0-9 ]*([.,][0-9]*)?");
    setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), this));
}

std::optional<double> NumberEdit::parse(const QString& text)
{
    QString t = text.trimmed();
    t.remove(u' ').remove(QChar(0x00a0)).replace(u',', u'.');
    if (t.isEmpty())
        return std::nullopt;
    bool ok = false;
    const double v = t.toDouble(&ok);
    return ok && std::isfinite(v) ? std::optional<double>(v) : std::nullopt;
}

QString NumberEdit::format(double value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'f', QLocale::FloatingPointShortest);
}

std::optional<double> NumberEdit::value() const
{
    return parse(text());
}

QVariant NumberEdit::variant() const
{
    const std::optional<double> v = value();
    if (!v)
        return QVariant();
    return m_whole ? QVariant(static_cast<qint64>(std::llround(*v))) : QVariant(*v);
}

void NumberEdit::setValue(const QVariant& value)
{
    bool ok = false;
    const double v = value.toDouble(&ok);
    setValue(value.isNull() || !ok ? std::nullopt : std::optional<double>(v));
}

void NumberEdit::setValue(std::optional<double> value)
{
    setText(value ? format(*value) : QString());
}
