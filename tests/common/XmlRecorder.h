#pragma once

#include "common/XmlReader.h"

#include <string>
#include <utility>
#include <vector>

namespace schedules::testing {

/// Writes down what it is told: "<name attribute=value" in "{}" when in a namespace, "|text", "*" and ">".
class Recorder : public XmlHandler
{
public:
    void StartElement(const XmlStartTag& tag) override
    {
        Write("<" + std::string(tag.name) + (tag.inNamespace ? "{}" : ""));
        for (const XmlAttribute& attribute : tag.attributes)
            told += " " + std::string(attribute.name) + (attribute.inNamespace ? "{}" : "") + "=" +
                    std::string(attribute.value);
        m_open.push_back(tag.start);
    }

    void EndElement(std::size_t end) override
    {
        Write(">");
        places.emplace_back(m_open.back(), end);
        m_open.pop_back();
    }

    void Text(std::string_view text) override
    {
        told += (m_inText ? "" : "|") + std::string(text);
        m_inText = true;
    }

    void OtherNode() override { Write("*"); }

    std::string told;
    std::vector<std::pair<std::size_t, std::size_t>>
        places; ///< where elements begin and end, in the order of their ends

private:
    void Write(const std::string& text)
    {
        told += text;
        m_inText = false;
    }

    bool m_inText = false;
    std::vector<std::size_t> m_open;
};

/// What a reader tells of a document; "refused" when it does not read it.
inline std::string ToldBy(bool (*read)(const QByteArray&, XmlHandler&), const QByteArray& document)
{
    Recorder recorder;
    return read(document, recorder) ? recorder.told : "refused";
}

/// The elements as they stand in the document, in the order of their ends.
inline std::string ElementsBy(bool (*read)(const QByteArray&, XmlHandler&), const QByteArray& document)
{
    Recorder recorder;
    if (!read(document, recorder))
        return "refused";
    std::string elements;
    for (const auto& [start, end] : recorder.places)
        elements +=
            document.mid(static_cast<qsizetype>(start), static_cast<qsizetype>(end - start)).toStdString() + "\n";
    return elements;
}

} // namespace schedules::testing
