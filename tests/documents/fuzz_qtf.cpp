// libFuzzer entry for the QTF reader (configure with -DTALLYNORTH_FUZZ=ON and clang).
#include "documents/QtfReader.h"
#include "documents/QtfTextDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextDocument>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_qtf";
    static char* argv[] = {name, nullptr};
    static QGuiApplication* app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QGuiApplication(argc, argv);
    }();
    Q_UNUSED(app);
    const QString qtf = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const Qtf::Document d = ReadQtf(qtf);
    PlainText(d.blocks, true);
    QtfLayout layout;
    layout.units = QtfUnits::Dots;
    auto doc = MakeTextDocument(d, layout);
    doc->setPageSize(QSizeF(3968, 6074));
    doc->documentLayout()->documentSize();
    return 0;
}
