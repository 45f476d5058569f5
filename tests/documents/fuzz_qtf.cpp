// libFuzzer entry for the QTF reader (configure with -DTALLYNORTH_FUZZ=ON and clang).
#include "documents/QtfReader.h"
#include "documents/QtfTextDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextDocument>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(*argc, *argv); // lives as long as the fuzzer, like its arguments
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString qtf = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const Qtf::Document d = ReadQtf(qtf);
    PlainText(d.blocks, true);
    auto doc = MakeTextDocument(d, {QtfUnits::Dots});
    doc->setPageSize(QSizeF(3968, 6074));
    doc->documentLayout()->documentSize();
    return 0;
}
