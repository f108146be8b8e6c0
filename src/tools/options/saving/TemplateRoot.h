#pragma once

#include "tools/options/saving/SaveError.h"

#include <QString>

#include <initializer_list>

namespace schedules {

struct RootAttribute
{
    QString name;
    QString value;
};

/// The text of a template whose root has these attributes, without a declaration. Whoever reads it finds the new
/// values, by their exact names and without regard to case: the first attribute whose name differs in case alone gets
/// the name and the value and stays where it is; if one of exactly that name follows it, the two swap their names, so
/// that nothing is lost. What is absent comes last. Nothing else changes.
///
/// Throws `Error` (`kSaveError`) when the text is no XML or its root no template (3075), and when a value is none that
/// XML can hold.
QString WithRootAttributes(const QString& templateXml, std::initializer_list<RootAttribute> attributes);

} // namespace schedules
