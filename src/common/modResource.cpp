#include "common/modResource.h"

#include "common/CResEnum.h"
#include "common/Error.h"

#include <QFile>
#include <QLocale>
#include <QTranslator>
#include <QVariant>

#include <algorithm>
#include <map>
#include <memory>

namespace schedules {

namespace {

constexpr SourceName kSource("modResource");
constexpr auto kComponentContext = "Schedules";

/// An open table of numbered texts, and the component's own catalogue in its language.
struct Module
{
    QByteArray content; // in memory, since the file may be replaced while it is in use
    QTranslator texts;
    QTranslator componentTexts;
};

bool LoadTable(Module& module, const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    module.content = file.readAll();
    const auto* data = reinterpret_cast<const uchar*>(module.content.constData());
    return module.texts.load(data, static_cast<int>(module.content.size())) && !module.texts.isEmpty();
}

// A language without a catalogue, as English is, reads the sources.
void LoadComponentTexts(Module& module)
{
    [[maybe_unused]] const bool isTranslated =
        module.componentTexts.load(QLocale(module.texts.language()), QStringLiteral("component"), QStringLiteral("_"),
                                   QStringLiteral(":/schedules"));
}

/// The open modules and the handle in use: one for the whole process, whatever tools it holds.
class ModuleRegistry
{
public:
    int Open(const QString& fileName)
    {
        auto module = std::make_unique<Module>();
        if (!LoadTable(*module, fileName))
            return 0;
        LoadComponentTexts(*module);
        m_modules.emplace(++m_lastHandle, std::move(module));
        return m_lastHandle;
    }

    void Close(int handle) { m_modules.erase(handle); }
    bool Empty() const { return m_modules.empty(); }

    int HandleInUse() const { return m_handleInUse; }
    void Use(int handle) { m_handleInUse = handle; }

    /// Null when the handle in use is no open module.
    const Module* InUse() const
    {
        const auto found = m_modules.find(m_handleInUse);
        return found == m_modules.end() ? nullptr : found->second.get();
    }

private:
    std::map<int, std::unique_ptr<Module>> m_modules;
    int m_lastHandle = 0;
    int m_handleInUse = 0;
};

ModuleRegistry& Modules()
{
    static ModuleRegistry modules;
    return modules;
}

QString CutToBuffer(const QString& text)
{
    const QString cut = text.left(kResourceBufferSize - 1);
    const bool endsInHalf = !cut.isEmpty() && cut.back().isHighSurrogate();
    return endsInHalf ? cut.chopped(1) : cut;
}

/// A kind of control that has a localised text, in which property, and the end of the text's key.
struct ControlKind
{
    const char* className;
    const char* textProperty;
    const char* textKey;
};

constexpr ControlKind kControlKinds[] = {
    {"QLabel", "text", "_CAPTION"},      {"QCheckBox", "text", "_CAPTION"},  {"QPushButton", "text", "_CAPTION"},
    {"QToolButton", "text", "_CAPTION"}, {"QGroupBox", "title", "_CAPTION"}, {"QLineEdit", "text", "_TEXT"},
};

const ControlKind* KindOf(const QObject& control)
{
    const auto* kind = std::ranges::find_if(
        kControlKinds, [&](const ControlKind& candidate) { return control.inherits(candidate.className); });
    return kind == std::end(kControlKinds) ? nullptr : kind;
}

QString KeyBase(const QObject& control)
{
    const QVariant index = control.property("index");
    if (!index.isValid())
        return control.objectName();

    bool isNumber = false;
    const int number = index.toInt(&isNumber);
    if (!isNumber)
        throw Error(kTypeMismatchError, QStringLiteral("The index of %1 is no number").arg(control.objectName()));
    return control.objectName() + QLatin1Char('_') + QString::number(number);
}

void SetFromKey(QObject& control, const char* property, const QString& key, const QString& enumeration)
{
    const int number = LookUpKey(key, enumeration);
    if (number != kNoSuchMember)
        control.setProperty(property, LoadResString(number));
}

void LoadControl(QObject& control, const QString& enumeration)
{
    const ControlKind* kind = KindOf(control);
    if (!kind)
        return;

    const QString keyBase = KeyBase(control);
    SetFromKey(control, kind->textProperty, keyBase + QLatin1String(kind->textKey), enumeration);
    SetFromKey(control, "toolTip", keyBase + QStringLiteral("_TOOLTIPTEXT"), enumeration);
}

} // namespace

int OpenResourceModule(const QString& fileName)
{
    return Modules().Open(fileName);
}

void CloseResourceModule(int handle)
{
    Modules().Close(handle);
}

bool HasOpenResourceModules()
{
    return !Modules().Empty();
}

int ResourceModule()
{
    return Modules().HandleInUse();
}

void SetResourceModule(int handle)
{
    Modules().Use(handle);
}

QString ResourceLanguage()
{
    const Module* module = Modules().InUse();
    return module ? QLocale(module->texts.language()).bcp47Name() : QString();
}

QString LoadResString(int number)
{
    if (ResourceModule() == 0)
        return QStringLiteral("Missing: %1").arg(number);

    const Module* module = Modules().InUse();
    return module ? CutToBuffer(module->texts.translate("", QByteArray::number(number).constData())) : QString();
}

QString ComponentText(const char* source)
{
    const Module* module = Modules().InUse();
    const QString text = module ? module->componentTexts.translate(kComponentContext, source) : QString();
    return text.isEmpty() ? QString::fromUtf8(source) : text;
}

int LookUpKey(const QString& key, const QString& enumeration)
{
    return CResEnum::ValueOf(enumeration, key).value_or(kNoSuchMember);
}

void LoadControls(const QString& formName, const QObjectList& controls, UserInterface& userInterface)
{
    Reported(userInterface, kSource.In("LoadControls"), [&] {
        const QString enumeration = QLatin1Char('e') + formName;
        for (QObject* control : controls) {
            if (!control)
                throw Error(kUnexpectedError, QStringLiteral("A control of %1 does not exist").arg(formName));
            LoadControl(*control, enumeration);
        }
    });
}

} // namespace schedules
