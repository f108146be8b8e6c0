#pragma once

#include "common/XmlReader.h"

#include <string>

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
    }

    void EndElement() override { Write(">"); }

    void Text(std::string_view text) override
    {
        told += (m_inText ? "" : "|") + std::string(text);
        m_inText = true;
    }

    void OtherNode() override { Write("*"); }

    std::string told;

private:
    void Write(const std::string& text)
    {
        told += text;
        m_inText = false;
    }

    bool m_inText = false;
};

/// What a reader tells of a document; "refused" when it does not read it.
inline std::string ToldBy(bool (*read)(const QByteArray&, XmlHandler&), const QByteArray& document)
{
    Recorder recorder;
    return read(document, recorder) ? recorder.told : "refused";
}

} // namespace schedules::testing
