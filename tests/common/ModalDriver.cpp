#include "ModalDriver.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QtTest>

ModalDriver::ModalDriver(QList<Step> steps) : m_steps(std::move(steps))
{
    m_timer.setInterval(20);
    connect(&m_timer, &QTimer::timeout, this, &ModalDriver::poll);
    m_timer.start();
    m_clock.start();
}

void ModalDriver::poll()
{
    QWidget* modal = QApplication::activeModalWidget();
    // A step that failed leaves its window open: close it so the test ends instead of hanging.
    if (m_clock.hasExpired(20000)) {
        if (auto* dialog = qobject_cast<QDialog*>(modal))
            dialog->reject();
        return;
    }
    if (!modal || modal == m_last || m_steps.isEmpty())
        return;
    m_last = modal;
    m_steps.takeFirst()(modal);
}

void Later(std::function<void()> work)
{
    QTimer::singleShot(0, qApp, std::move(work));
}

ModalDriver::Step Answer(QStringList* texts, QMessageBox::StandardButton button)
{
    return [texts, button](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        QVERIFY2(box, w->metaObject()->className());
        // The box shows the message as rich text: one paragraph per "&" of the message.
        QTextDocument shown;
        shown.setHtml(box->text());
        *texts << shown.toPlainText().replace(u'\n', u'&');
        QAbstractButton* answer = box->button(button);
        QVERIFY2(answer, qPrintable(QStringLiteral("no such button on: ") + texts->last()));
        answer->click();
    };
}

ModalDriver::Step ChooseFile(const QString& path)
{
    return [path](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        QVERIFY2(dialog, w->metaObject()->className());
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(name);
        name->setText(path);
        static_cast<QDialog*>(dialog)->accept();
    };
}
