#include "RecordBrowseDlg.h"

#include <QVBoxLayout>

RecordBrowseDlg::RecordBrowseDlg(const BrowseInfo& info, RecordBrowse::Mode mode, QWidget* parent)
    : QDialog(parent), m_browse(new RecordBrowse(info, mode, this))
{
    setWindowTitle(info.title.text());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browse);
    resize(info.searchTip ? 760 : 600, 440);
    connect(m_browse, &RecordBrowse::cancelled, this, &QDialog::reject);
    connect(m_browse, &RecordBrowse::chosen, this, [this](qint64 id) {
        m_chosen = id;
        accept();
    });
    (void)m_browse->reload();
}

RecordBrowseTab::RecordBrowseTab(const BrowseInfo& info, QWidget* parent)
    : ListTab(parent), m_browse(new RecordBrowse(info, RecordBrowse::Mode::Page, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browse);
}
