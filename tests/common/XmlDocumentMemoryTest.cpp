// Documents for which the library has not enough memory: they are refused, and never there in part.

#include "common/XmlDocument.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <libxml/xmlmemory.h>
#include <new>

namespace schedules {

namespace {

const QString kText =
    QStringLiteral("<?xml version=\"1.0\"?>\n<Templates site=\"north\" p:a=\"b &amp; c\" xmlns:p=\"u\">"
                   "<!-- rotating --><Template name=\"Pumps\" filename=\"Pumps.xml\"/>"
                   "<Template name=\"&lt;Größe&gt;\">one &amp; two<![CDATA[three]]><?go on?></Template>"
                   "<p:x>Ж</p:x></Templates>");

int g_successes = 0;
bool g_hasFailed = false;

bool Fails()
{
    const bool fails = g_successes-- == 0;
    g_hasFailed |= fails;
    return fails;
}

void* Allocated(std::size_t size)
{
    return Fails() ? nullptr : std::malloc(size);
}

void* Reallocated(void* memory, std::size_t size)
{
    return Fails() ? nullptr : std::realloc(memory, size);
}

char* Copied(const char* text)
{
    return Fails() ? nullptr : ::strdup(text);
}

/// While it lives, the library lacks the memory for one thing.
class FailingLibrary
{
public:
    explicit FailingLibrary(int successes)
    {
        xmlMemGet(&m_free, &m_malloc, &m_realloc, &m_strdup);
        g_successes = successes;
        g_hasFailed = false;
        xmlMemSetup(std::free, Allocated, Reallocated, Copied);
    }
    ~FailingLibrary() { xmlMemSetup(m_free, m_malloc, m_realloc, m_strdup); }
    Q_DISABLE_COPY_MOVE(FailingLibrary)

private:
    xmlFreeFunc m_free = nullptr;
    xmlMallocFunc m_malloc = nullptr;
    xmlReallocFunc m_realloc = nullptr;
    xmlStrdupFunc m_strdup = nullptr;
};

/// What a step gives when the library lacks the memory for its Nth thing, for each N: the whole result, or it throws.
void ExpectWholeOrThrown(const std::function<QString()>& step)
{
    const QString whole = step();
    int failures = 0;
    for (bool hasFailed = true; hasFailed; ++failures) {
        SCOPED_TRACE(failures);
        try {
            const FailingLibrary failing(failures);
            const QString given = step();
            EXPECT_EQ(given.toStdString(), whole.toStdString());
        } catch (const std::bad_alloc&) {
        }
        hasFailed = g_hasFailed;
    }
    EXPECT_GT(failures, 5);
}

} // namespace

TEST(XmlDocumentMemory, ATextIsReadAsAWholeOrNotAtAll)
{
    ExpectWholeOrThrown([] {
        const auto document = XmlDocument::FromText(kText);
        g_successes = -1;                                             // what comes now is not tried here
        return document ? document.ToText() : throw std::bad_alloc(); // it was refused
    });
}

TEST(XmlDocumentMemory, ADocumentIsWrittenAsAWholeOrNotAtAll)
{
    const auto document = XmlDocument::FromText(kText);
    ExpectWholeOrThrown([&] { return document.ToText(); });
}

} // namespace schedules
