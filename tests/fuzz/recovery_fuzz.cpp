// Any bytes as what an interrupted run has left of its sheet, and any sheet as one that is left.
#include "diagrams/recovery.h"
#include "fuzz.h"

namespace {

// What a run finds in the folder that others have left; each is offered once.
QList<SheetContents> Left(const Folder& folder) {
    QList<SheetContents> left;
    Recovery(folder.Path()).OfferLeft([&left](const SheetContents& contents) {
        left += contents;
        return false;
    });
    Require(QDir(folder.Path()).isEmpty(), "what was offered goes");
    return left;
}

// A line a row of the list, the rest is the text.
SheetContents AnySheet(Input input) {
    SheetContents contents;
    for (int row = 0; row < 3; ++row) {
        const QByteArray line = input.Line();
        if (!line.isEmpty())
            contents.rows += CollectedRow{QString::fromUtf8(line), line.size() % 2 == 0};
    }
    contents.text = QString::fromUtf8(input.Rest());
    return contents;
}

void KeepAndFind(const Folder& folder, const SheetContents& contents) {
    {
        Recovery run(folder.Path());
        run.Keep(contents);
        const QStringList files =
            QDir(folder.Path()).entryList({QStringLiteral("sheet-*.json")}, QDir::Files);
        Require(files.size() == 1, "a run keeps one file");
        // Of a run that did not come to its end.
        QFile::copy(folder.Path() + files.first(), folder.Path() + QStringLiteral("sheet-0.json"));
    }
    const bool nothing = contents.text.isEmpty() && contents.rows.isEmpty();
    Require(Left(folder) == (nothing ? QList<SheetContents>() : QList{contents}),
            "what is left is what was kept");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    Input input(data, size);
    const SheetContents contents = AnySheet(input);
    folder.Write(QStringLiteral("sheet-1.json"), input.Rest());
    for (const SheetContents& left : Left(folder))
        Require(!left.text.isEmpty() || !left.rows.isEmpty(), "nothing is never offered");
    KeepAndFind(folder, contents);
    return 0;
}
