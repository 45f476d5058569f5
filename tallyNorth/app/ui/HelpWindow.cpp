#include "HelpWindow.h"

#include "app/HelpTopics.h"
#include "documents/QtfTextDocument.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPointer>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int kIdRole = Qt::UserRole;

std::unique_ptr<QTextDocument> TopicDocument(const QString& qtf)
{
    QtfLayout layout;
    layout.units = QtfUnits::Screen;
    return QtfToTextDocument(qtf, layout);
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Vantrell Számlázó Súgó"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* layout = new QVBoxLayout(this);
    auto* splitter = new QSplitter(this);
    m_tree = new QTreeWidget(splitter);
    m_tree->setObjectName(QStringLiteral("m_topics"));
    m_tree->header()->hide();
    // Headings without a text of their own hold the topics after them.
    QTreeWidgetItem* heading = nullptr;
    for (const HelpTopic& topic : HelpTopicTree()) {
        QTreeWidgetItem* item = nullptr;
        if (topic.id.isEmpty()) {
            item = new QTreeWidgetItem(m_tree, {topic.title});
            item->setFlags(Qt::ItemIsEnabled);
            QFont bold = item->font(0);
            bold.setBold(true);
            item->setFont(0, bold);
            heading = item;
            continue;
        }
        // The settings heading gathers the topics about keeping the basic data.
        if (heading && topic.id != QLatin1String("Termekek"))
            item = new QTreeWidgetItem(heading, {topic.title});
        else {
            heading = nullptr;
            item = new QTreeWidgetItem(m_tree, {topic.title});
        }
        item->setData(0, kIdRole, topic.id);
    }
    m_tree->expandAll();
    m_text = new QTextBrowser(splitter);
    m_text->setObjectName(QStringLiteral("m_text"));
    m_text->setOpenLinks(false);
    splitter->addWidget(m_tree);
    splitter->addWidget(m_text);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({320, 620});
    layout->addWidget(splitter);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item && !item->data(0, kIdRole).toString().isEmpty())
            showTopic(item->data(0, kIdRole).toString());
    });
    resize(940, 640);
}

HelpWindow::~HelpWindow()
{
    // The document goes before the view that shows it.
    m_text->setDocument(nullptr);
}

bool HelpWindow::showTopic(const QString& topic)
{
    const QString id = HelpTopicId(topic);
    const QString qtf = HelpTopicQtf(id);
    if (qtf.isEmpty())
        return false;
    m_current = id;
    // The view lets go of the old document before it is deleted.
    std::unique_ptr<QTextDocument> document = TopicDocument(qtf);
    document->setDocumentMargin(12);
    m_text->setDocument(document.get());
    m_document = std::move(document);
    for (QTreeWidgetItemIterator it(m_tree); *it; ++it) {
        if ((*it)->data(0, kIdRole).toString() == id) {
            const QSignalBlocker block(m_tree);
            m_tree->setCurrentItem(*it);
            break;
        }
    }
    return true;
}

void HelpWindow::open(QWidget* parent, const QString& topic)
{
    const QString shown = HelpTopicQtf(topic).isEmpty() ? HelpTopicTree().first().id : topic;
    if (QWidget* modal = QApplication::activeModalWidget()) {
        HelpWindow window(modal);
        window.showTopic(shown);
        window.exec();
        return;
    }
    static QPointer<HelpWindow> window;
    if (!window) {
        window = new HelpWindow(parent ? parent->window() : nullptr);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->showTopic(shown);
    window->show();
    window->raise();
    window->activateWindow();
}

void HelpWindow::about(QWidget* parent)
{
    QDialog box(parent);
    box.setObjectName(QStringLiteral("AboutDlg"));
    box.setWindowTitle(tr("About Program"));
    auto* layout = new QVBoxLayout(&box);
    auto* text = new QTextBrowser(&box);
    text->setObjectName(QStringLiteral("m_about"));
    text->setFrameShape(QFrame::NoFrame);
    const std::unique_ptr<QTextDocument> document = TopicDocument(AboutQtf());
    text->setDocument(document.get());
    layout->addWidget(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &box);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    layout->addWidget(buttons);
    box.resize(420, 260);
    box.exec();
    text->setDocument(nullptr);
}
