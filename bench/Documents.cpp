#include "Documents.h"

#include <array>
#include <cstdint>
#include <random>

namespace schedules::bench {

namespace {

constexpr std::array kRemarks{"spare in store", "см. примечание", "Ανταλλακτικό", "备用泵", "by vendor", "API 610 OH2"};
constexpr std::array kAttributes{R"( AllowEdit="-1")", R"( dataType="DOUBLE")", R"( dataType="DOUBLE" AllowEdit="-1")",
                                 R"( dataType="LONG" UserDefined="-1")"};

class Writer
{
public:
    QString Document(TableSize size)
    {
        m_text = "<SCHEDULE>\n  <TABLE>\n";
        for (int row = 0; row <= size.rows; ++row) {
            m_text += "    <TR>";
            for (int column = 0; column <= size.columns; ++column)
                AppendCell(row, column);
            m_text += "</TR>\n";
        }
        return QString::fromUtf8(m_text + "  </TABLE>\n</SCHEDULE>\n");
    }

private:
    void AppendCell(int row, int column)
    {
        if (row == 0)
            m_text += "<TH>Item " + QByteArray::number(column) + "</TH>";
        else if (column == 0)
            m_text += "<TH>P-" + QByteArray::number(100 + row) + "A</TH>";
        else
            AppendDataCell();
    }

    void AppendDataCell()
    {
        m_text += "<TD";
        if (Below(10) < 4)
            m_text += kAttributes[Below(kAttributes.size())];
        m_text += ">";
        if (Below(8) == 0)
            m_text += kRemarks[Below(kRemarks.size())];
        else
            m_text += QByteArray::number(static_cast<double>(Below(1'000'000)) / 100, 'f', 2);
        m_text += "</TD>";
    }

    std::uint32_t Below(std::size_t limit) { return static_cast<std::uint32_t>(m_random() % limit); }

    QByteArray m_text;
    std::minstd_rand m_random{7};
};

} // namespace

QString ScheduleDocument(TableSize size)
{
    return Writer().Document(size);
}

} // namespace schedules::bench
