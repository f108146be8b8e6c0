// Rich text: whatever a message says becomes texts and formats in proportion to it, and nothing that is loaded, linked
// or framed.

#include "fuzz/Input.h"
#include "rtf/DrawnDocument.h"
#include "rtf/RtfReader.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QUrl>

#include <gtest/gtest.h>

using namespace schedules::rtf;
using namespace schedules::testing;

namespace {

/// A document that nothing may be loaded into.
class AloneDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl& name) override
    {
        ADD_FAILURE() << "asked for " << name.toString().toStdString();
        return {};
    }
};

void ExpectPlain(const QTextCharFormat& format)
{
    EXPECT_FALSE(format.isAnchor());
    EXPECT_EQ(format.objectType(), QTextFormat::NoObject);
}

void ExpectTextsAlone(const QTextDocument& document)
{
    EXPECT_TRUE(document.rootFrame()->childFrames().isEmpty());
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at)
            ExpectPlain(at.fragment().charFormat());
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr qsizetype kMostForOne = 40; // a paragraph of a list may repeat a bullet of some length
    const QString message = Input(data, size).Text();
    AloneDocument document;
    ReadRichText(message, document);
    EXPECT_LE(document.characterCount(), kMostForOne * message.size() + kMostForOne);
    ExpectTextsAlone(document);
    const std::string once = Drawn(document);
    ReadRichText(message, document, 192);
    ReadRichText(message, document);
    EXPECT_EQ(Drawn(document), once);
    return 0;
}
