#include "fuzz/Input.h"

#include <QApplication>

#include <cstring>
#include <gtest/gtest.h>

/// An expectation that fails outside of a test is thrown, and what nobody catches ends the program.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    GTEST_FLAG_SET(throw_on_failure, true);
    static const auto* const application = new QApplication(*argc, *argv); // the fuzzer ends in the middle of things
    return application ? 0 : 1;
}

/// What the library of fonts keeps for good counts as lost as soon as one input is done.
extern "C" const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

namespace schedules::testing {

Input::Input(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return;
    bytes = QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size) - 1);
    choice = data[size - 1];
}

QString Input::Text() const
{
    if (choice < 0x80)
        return QString::fromUtf8(bytes);
    QString text(bytes.size() / 2, Qt::Uninitialized);
    std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(text.size()) * sizeof(QChar));
    return text;
}

} // namespace schedules::testing
