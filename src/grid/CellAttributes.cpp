#include "grid/CellAttributes.h"

#include "common/Utf8.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace schedules {

namespace {

constexpr std::string_view kTrue = "-1";

constexpr std::array<std::pair<std::string_view, DataType>, 6> kDataTypes{{
    {"INTEGER", DataType::Integer},
    {"LONG", DataType::Long},
    {"SINGLE", DataType::Single},
    {"DOUBLE", DataType::Double},
    {"CURRENCY", DataType::Currency},
    {"CHECKBOX", DataType::CheckBox},
}};

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsNumber(std::string_view text)
{
    bool isNumber = false;
    QByteArray(text.data(), static_cast<qsizetype>(text.size())).toDouble(&isNumber);
    return isNumber;
}

CellAttributes Understood(const XmlStartTag& tag, CellElement element)
{
    CellAttributes cell;
    bool visible = false;
    for (const auto& [name, value, inNamespace, prefix] : tag.attributes) {
        if (inNamespace)
            continue;
        if (name == "dataType")
            cell.style.dataType = DataTypeNamed(value);
        else if (name == "visible")
            visible = value == kTrue;
        else if (name == "hidden")
            cell.hidden = value == kTrue;
        else if (name == "fontBold")
            cell.bold = value == kTrue;
        else if (name == "bgColor")
            cell.backColor = ColorNumber(value);
        else if (name == "UserDefined")
            cell.style.userDefined = value == kTrue;
        else if (name == "AllowEdit")
            cell.style.allowEdit = value == kTrue;
    }
    if (element == CellElement::Data && cell.style.dataType == DataType::CheckBox) {
        cell.hidesValue = !visible;
        cell.style.type = visible ? CellType::CheckBox : CellType::StaticText;
    }
    return cell;
}

void AppendField(std::string& key, std::string_view field)
{
    key += field;
    key += '\0'; // stands in no XML text, so that fields cannot run into each other
}

} // namespace

std::optional<std::uint32_t> ColorNumber(std::string_view text)
{
    const std::string_view trimmed = Trimmed(text);
    bool isWhole = false;
    const qlonglong number =
        QByteArray(trimmed.data(), static_cast<qsizetype>(trimmed.size())).toLongLong(&isWhole, 10);
    if (!isWhole || number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

DataType DataTypeNamed(std::string_view text)
{
    const std::string_view trimmed = Trimmed(text);
    if (trimmed.empty())
        return DataType::Text;
    if (IsNumber(trimmed))
        return DataType::Number;
    const QByteArray upper = FromUtf8(trimmed).toUpper().toUtf8();
    const auto found = std::ranges::find(kDataTypes, std::string_view(upper), &decltype(kDataTypes)::value_type::first);
    return found == kDataTypes.end() ? DataType::Text : found->second;
}

const CellAttributes& CellAttributesReader::Read(const XmlStartTag& tag, CellElement element)
{
    if (tag.attributes.empty())
        return m_plain;
    const std::string_view key = KeyOf(tag, element);
    if (const auto known = m_known.find(key); known != m_known.end())
        return known->second;
    if (m_known.size() >= kMostRemembered)
        m_known.clear();
    return m_known.emplace(key, Understood(tag, element)).first->second;
}

std::string_view CellAttributesReader::KeyOf(const XmlStartTag& tag, CellElement element)
{
    if (!tag.written.empty())
        return tag.written;
    m_key.assign(1, element == CellElement::Data ? 'D' : 'H');
    for (const XmlAttribute& attribute : tag.attributes) {
        AppendField(m_key, attribute.inNamespace ? std::string_view() : attribute.name);
        AppendField(m_key, attribute.value);
    }
    return m_key;
}

} // namespace schedules
