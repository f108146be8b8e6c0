#pragma once

#include "host/project/ProjectTypes.h"

namespace schedules::host {

/// What a schedule that came back has in the cells that are marked as edited, in the units in which `items` are stored.
/// Where the column's format groups digits, commas that stand as in such a format are dropped.
///
/// A marked cell that does not say which tag and item it belongs to is none of this host's and is left out. One of an
/// item that is not among `items` keeps its text. Throws `HostError` for a text that is no XML.
QList<ValueEdit> EditedCells(const QString& scheduleXml, const QList<DataItem>& items);

/// The identifiers in a document of selected tags, in its order. Throws `HostError` for a text that is no XML.
QStringList SelectedTags(const QString& selectedTagsXml);

} // namespace schedules::host
