#pragma once

#include "common/UserInterface.h"

#include <QObject>
#include <QString>

#include <limits>
#include <optional>

namespace schedules {

/// A module's texts are cut to what fits a buffer of 2048 characters with its terminator.
inline constexpr int kResourceBufferSize = 2048;

/// What `LookUpKey` gives for a key that does not exist.
inline constexpr int kNoSuchMember = std::numeric_limits<int>::min();

/// Opens a compiled message catalogue (`.qm`) whose message ids are the numbers of the texts. Returns a positive
/// handle, or 0 when the file is not one.
int OpenResourceModule(const QString& fileName);
void CloseResourceModule(int handle);
bool HasOpenResourceModules();

/// The module that all tools take their texts from; 0 until a host supplies one. Any number can be set; one that is
/// no open module has no texts.
int ResourceModule();
void SetResourceModule(int handle);

/// The language of the module's texts as a tag such as "de"; empty while no module is set.
QString ResourceLanguage();

/// The text of that number: "Missing: " and the number while no module is set, empty when the module lacks it.
QString LoadResString(int number);

/// A text of the component's own that bears no number, in the language of the resource module; `source`, the English
/// text, when there is no translation.
QString ComponentText(const char* source);

/// The number of the string for a key of an enumeration (`ectlSchedule`, ...); both names are compared exactly.
int LookUpKey(const QString& key, const QString& enumeration);

/// Sets captions, texts and tooltips of a form's controls by their object names (and their dynamic property "index",
/// for members of a control array). Labels, check boxes, buttons and group boxes have captions, line edits texts;
/// other kinds of control are left alone. Failures are reported with the name "LoadControls".
void LoadControls(const QString& formName, const QObjectList& controls, UserInterface& userInterface);

} // namespace schedules
