#include "rtf/CodePage.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>
#include <utility>

namespace schedules::rtf {

namespace {

constexpr std::array kCodePages{kSymbolCodePage,
                                437,
                                737,
                                775,
                                850,
                                852,
                                855,
                                857,
                                858,
                                860,
                                861,
                                862,
                                863,
                                864,
                                865,
                                866,
                                874,
                                932,
                                936,
                                949,
                                950,
                                1250,
                                1251,
                                1252,
                                1253,
                                1254,
                                1255,
                                1256,
                                1257,
                                1258,
                                1361,
                                kMacCodePage,
                                kUtf8CodePage};

constexpr std::array<std::pair<int, int>, 18> kCharsets{{
    {0, kAnsiCodePage},
    {2, kSymbolCodePage},
    {77, kMacCodePage},
    {128, 932},
    {129, 949},
    {130, 1361},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {254, 437},
}};

constexpr int kOemCharset = 255;
constexpr int kOemCodePage = 850;

constexpr const char* kOwnEncoding = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE";
constexpr char16_t kLead = 0; ///< in the upper half: no character alone

QByteArray EncodingOf(int codePage)
{
    switch (codePage) {
    case kSymbolCodePage:
        return EncodingOf(kAnsiCodePage);
    case kMacCodePage:
        return "MACINTOSH";
    case kUtf8CodePage:
        return "UTF-8";
    default:
        return "CP" + QByteArray::number(codePage);
    }
}

struct Conversion
{
    QString text; ///< empty when the bytes are none of the encoding
    bool incomplete = false;
};

Conversion Converted(iconv_t converter, QByteArrayView bytes)
{
    if (converter == reinterpret_cast<iconv_t>(-1))
        return {};
    std::array<char16_t, 8> buffer;
    char* input = const_cast<char*>(bytes.data());
    auto size = static_cast<std::size_t>(bytes.size());
    auto* output = reinterpret_cast<char*>(buffer.data());
    std::size_t room = sizeof buffer;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &input, &size, &output, &room) == std::size_t(-1))
        return {{}, errno == EINVAL};
    // Letters that an accent may follow are held back until then.
    iconv(converter, nullptr, nullptr, &output, &room);
    return {QString::fromUtf16(buffer.data(), qsizetype((sizeof buffer - room) / sizeof(char16_t)))};
}

} // namespace

bool IsCodePage(int number)
{
    return std::ranges::find(kCodePages, number) != kCodePages.end();
}

int CodePageOfCharset(int charset)
{
    if (charset == kOemCharset)
        return kOemCodePage;
    const auto found = std::ranges::find(kCharsets, charset, &std::pair<int, int>::first);
    return found != kCharsets.end() ? found->second : 0;
}

CodePage::CodePage(int number) : m_converter(iconv_open(kOwnEncoding, EncodingOf(number).constData()))
{
    FillUpperHalf();
    if (number == kSymbolCodePage)
        ReplaceSymbols();
}

CodePage::~CodePage()
{
    if (m_converter != reinterpret_cast<iconv_t>(-1))
        iconv_close(m_converter);
}

void CodePage::FillUpperHalf()
{
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const char single = static_cast<char>(byte);
        const Conversion character = Converted(m_converter, QByteArrayView(&single, 1));
        const char16_t alone = character.text.size() == 1 ? character.text.front().unicode() : u'\uFFFD';
        m_upperHalf[byte - 0x80] = character.incomplete ? kLead : alone;
    }
}

/// The two that stand in front of list items. Fonts of symbols that have other names are seldom there.
void CodePage::ReplaceSymbols()
{
    m_upperHalf[0xB7 - 0x80] = u'\u2022';
    m_upperHalf[0xA7 - 0x80] = u'\u25AA';
}

bool CodePage::IsLead(uchar byte) const
{
    return byte >= 0x80 && m_upperHalf[byte - 0x80] == kLead;
}

QChar CodePage::Decoded(uchar byte) const
{
    return byte < 0x80 ? QChar(byte) : QChar(m_upperHalf[byte - 0x80]);
}

bool CodePage::IsBeginning(QByteArrayView bytes) const
{
    return Converted(m_converter, bytes).incomplete;
}

QString CodePage::Decoded(QByteArrayView bytes) const
{
    return Converted(m_converter, bytes).text;
}

const CodePage& CodePages::At(int number)
{
    return m_pages.try_emplace(number, number).first->second;
}

} // namespace schedules::rtf
