#pragma once

#include <QtGlobal>

#include <libxml/xmlerror.h>
#include <new>

namespace schedules {

/// While it lives, nobody reads what the XML library has to tell, and missing memory is remembered: the library goes on
/// after that, and what it makes of a document then is another one, or a smaller one.
class XmlLibraryErrors
{
public:
    XmlLibraryErrors() : m_context(xmlStructuredErrorContext), m_before(xmlStructuredError)
    {
        xmlSetStructuredErrorFunc(this, OnError);
    }
    ~XmlLibraryErrors() { xmlSetStructuredErrorFunc(m_context, m_before); }
    Q_DISABLE_COPY_MOVE(XmlLibraryErrors)

    /// Throws when memory was missing.
    void RequireMemory() const
    {
        if (m_lacksMemory)
            throw std::bad_alloc();
    }

private:
    static void OnError(void* context, xmlErrorPtr error)
    {
        static_cast<XmlLibraryErrors*>(context)->m_lacksMemory |= error->code == XML_ERR_NO_MEMORY;
    }

    void* m_context;
    xmlStructuredErrorFunc m_before;
    bool m_lacksMemory = false;
};

} // namespace schedules
