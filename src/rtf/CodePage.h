#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <map>

namespace schedules::rtf {

inline constexpr int kAnsiCodePage = 1252;
/// Of fonts that have symbols where others have letters.
inline constexpr int kSymbolCodePage = 42;
inline constexpr int kMacCodePage = 10000;
inline constexpr int kUtf8CodePage = 65001;

/// Whether this reader decodes the code page: the Windows and DOS ones, those of East Asia, and those above.
bool IsCodePage(int number);

/// The code page of the fonts of a character set; 0 when the set leaves that to the document.
int CodePageOfCharset(int charset);

/// What the bytes of one code page mean. Bytes that mean nothing are the replacement character.
class CodePage
{
public:
    explicit CodePage(int number);
    ~CodePage();
    Q_DISABLE_COPY_MOVE(CodePage)

    /// Whether the byte is only the beginning of a character.
    bool IsLead(uchar byte) const;
    QChar Decoded(uchar byte) const;

    /// Whether the bytes, a lead first, are only the beginning of a character.
    bool IsBeginning(QByteArrayView bytes) const;
    /// Empty when the bytes, a lead first, are no character.
    QString Decoded(QByteArrayView bytes) const;

private:
    void FillUpperHalf();
    void ReplaceSymbols();

    void* m_converter;
    std::array<char16_t, 128> m_upperHalf{};
};

/// The code pages of one document, each made when it is first met.
class CodePages
{
public:
    const CodePage& At(int number);

private:
    std::map<int, CodePage> m_pages;
};

} // namespace schedules::rtf
