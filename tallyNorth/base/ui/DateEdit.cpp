#include "DateEdit.h"

#include "base/DateText.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QValidator>

namespace {

// Digits with "." or "-" between them while typing; a complete text must be a real date.
class DateValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override
    {
        static const QRegularExpression partial(
            QStringLiteral("^\\s*(\\d{0,4}|\\d{1,4}([.\\-]\\s*\\d{1,2}){0,2}\\s*[.\\-]?)\\s*$"));
        if (input.trimmed().isEmpty() || ParseDate(input).isValid())
            return Acceptable;
        return partial.match(input).hasMatch() ? Intermediate : Invalid;
    }
};

// A small calendar sheet for the button at the end of the field.
QIcon CalendarIcon(const QPalette& palette)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing, false);
    const QColor ink = palette.color(QPalette::Text);
    p.setPen(ink);
    p.setBrush(palette.color(QPalette::Base));
    p.drawRect(1, 2, 13, 12);
    p.fillRect(1, 2, 14, 4, palette.color(QPalette::Highlight));
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < 3; ++col)
            p.fillRect(3 + col * 4, 8 + row * 3, 2, 2, ink);
    return QIcon(pixmap);
}

} // namespace

DateEdit::DateEdit(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new DateValidator(this));
    setPlaceholderText(tr("yyyy.mm.dd."));
    QAction* pick = addAction(CalendarIcon(palette()), QLineEdit::TrailingPosition);
    pick->setToolTip(tr("Choose a date from the calendar"));
    connect(pick, &QAction::triggered, this, &DateEdit::showCalendar);
    connect(this, &QLineEdit::editingFinished, this, &DateEdit::tidyText);
    connect(this, &QLineEdit::textChanged, this, &DateEdit::textEdited);
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("0000.00.00.")) + 48;
    setMinimumWidth(width);
}

QDate DateEdit::date() const
{
    return ParseDate(text());
}

void DateEdit::setDate(const QDate& date)
{
    setText(FormatDate(date));
}

bool DateEdit::isValidInput() const
{
    return text().trimmed().isEmpty() || date().isValid();
}

void DateEdit::showCalendar()
{
    if (!m_calendar) {
        m_calendar = new QCalendarWidget(this);
        m_calendar->setWindowFlags(Qt::Popup);
        m_calendar->setGridVisible(true);
        connect(m_calendar, &QCalendarWidget::clicked, this, [this](const QDate& picked) {
            setDate(picked);
            m_calendar->hide();
            setFocus();
        });
        connect(m_calendar, &QCalendarWidget::activated, m_calendar, &QCalendarWidget::clicked);
    }
    const QDate shown = date().isValid() ? date() : QDate::currentDate();
    m_calendar->setSelectedDate(shown);
    m_calendar->adjustSize();
    m_calendar->move(mapToGlobal(QPoint(0, height())));
    m_calendar->show();
    m_calendar->setFocus();
}

void DateEdit::keyPressEvent(QKeyEvent* event)
{
    const bool open = event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down &&
                                                     event->modifiers().testFlag(Qt::AltModifier));
    if (open) {
        showCalendar();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

// "2024.3.5" becomes "2024.03.05." when the user leaves the field.
void DateEdit::tidyText()
{
    const QDate typed = date();
    if (typed.isValid() && text() != FormatDate(typed))
        setDate(typed);
}

void DateEdit::textEdited()
{
    const QDate now = date();
    if (now == m_lastDate)
        return;
    m_lastDate = now;
    Q_EMIT dateChanged(now);
}
