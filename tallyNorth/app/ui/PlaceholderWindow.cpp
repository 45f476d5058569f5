#include "PlaceholderWindow.h"

#include "Startup.h"

#include "app/Setup.h"

#include <QLabel>
#include <QMenuBar>

#include "Columns.h"

namespace {

QString Title()
{
    const Setup& setup = Setup::current();
    return QStringLiteral("Vantrell Invoicer - ") + setup.text(Col::SETUP_NAME) +
           QStringLiteral(" (adószám:") + setup.text(Col::SETUP_TAX_NO) + u')';
}

} // namespace

PlaceholderWindow::PlaceholderWindow(QWidget* parent) : QMainWindow(parent)
{
    setWindowTitle(Title());
    auto* label = new QLabel(this);
    label->setAlignment(Qt::AlignCenter);
    const Setup& setup = Setup::current();
    label->setText(setup.text(Col::SETUP_NAME) + u'\n' + setup.text(Col::SETUP_ZIP) + u' ' +
                   setup.text(Col::SETUP_CITY) + QLatin1String(", ") +
                   setup.text(Col::SETUP_ADDRESS));
    setCentralWidget(label);
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("Change database/company..."), this, [this, label] {
        if (ChangeCompany(this)) {
            setWindowTitle(Title());
            label->setText(Setup::current().text(Col::SETUP_NAME));
        }
    });
    file->addAction(tr("Exit"), this, &QWidget::close);
    resize(640, 360);
}
