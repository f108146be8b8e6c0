// Making the table of a schedule, against the template model reading a file of as many bytes.

#include "Quiet.h"
#include "TemplateFolder.h"
#include "host/schedule/ScheduleBuilder.h"
#include "model/CTemplate.h"

#include <QFileInfo>

#include <benchmark/benchmark.h>

namespace schedules::bench {

namespace {

using host::ScheduleContent;
using host::StoredValue;
using host::TemplateLayout;

constexpr int kItems = 200;

/// Seven values in ten are numbers, most of which are converted and formatted.
StoredValue ValueOf(int item, int tag)
{
    const int number = item * 7919 + tag * 104729;
    if (item % 10 < 7)
        return {QString::number((number % 100'000) / 10.0, 'f', 1), number % 5};
    return {item % 10 == 7 ? QString::number(number % 2) : QStringLiteral("Crude charge %1").arg(number % 100), 1};
}

host::DataItem ItemOf(int item)
{
    const bool isNumber = item % 10 < 7;
    return {.location = QStringLiteral("PUMPS/Group%1/Item%2").arg(item / 10).arg(item),
            .name = QStringLiteral("Item%1").arg(item),
            .group = {},
            .dataType = isNumber         ? QStringLiteral("DOUBLE")
                        : item % 10 == 7 ? QStringLiteral("CHECKBOX")
                                         : QStringLiteral("TEXT"),
            .unit = isNumber ? QStringLiteral("m³/h") : QString(),
            .editable = item % 3 != 0};
}

ScheduleContent ContentOf(int tags)
{
    ScheduleContent content;
    for (int tag = 0; tag < tags; ++tag)
        content.tags.append({QStringLiteral("P-%1").arg(tag), QStringLiteral("PUMPS")});
    for (int item = 0; item < kItems; ++item) {
        content.items.append(ItemOf(item));
        content.values.emplaceBack();
        for (int tag = 0; tag < tags; ++tag)
            content.values.last().append(ValueOf(item, tag));
    }
    return content;
}

TemplateLayout LayoutOf(bool tagsAsRows)
{
    TemplateLayout layout{.tagsAsRows = tagsAsRows};
    for (int item = 0; item < kItems; ++item) {
        if (item % 10 == 0)
            layout.groups.append({.caption = QStringLiteral("Group"), .nameShown = true, .color = {}, .items = {}});
        const host::DataItem data = ItemOf(item);
        layout.groups.last().items.append({.location = data.location,
                                           .caption = data.name,
                                           .unitShown = true,
                                           .unit = data.unit.isEmpty() ? QString() : QStringLiteral("gpm"),
                                           .dataType = {},
                                           .format = QStringLiteral("0.0")});
    }
    return layout;
}

void Build(benchmark::State& state, int tags, bool tagsAsRows)
{
    const ScheduleContent content = ContentOf(tags);
    const TemplateLayout layout = LayoutOf(tagsAsRows);
    qsizetype size = 0;
    for (auto _ : state)
        size = ScheduleXml(layout, content).size();
    state.counters["characters"] = static_cast<double>(size);
}

/// A folder with one template of about as many bytes as the table of a schedule with so many tags.
const TemplateFolder& FolderAsLargeAs(int tags)
{
    static const qint64 wanted = ScheduleXml(LayoutOf(false), ContentOf(tags)).toUtf8().size();
    static const qint64 ofTenGroups = QFileInfo(QFile::decodeName(TemplateFolder({1, 10, 20}).FileNames()[0])).size();
    static const TemplateFolder folder({1, static_cast<int>(10 * wanted / ofTenGroups), 20});
    return folder;
}

void ReadTemplate(benchmark::State& state, int tags)
{
    Quiet quiet;
    const QFileInfo file(QFile::decodeName(FolderAsLargeAs(tags).FileNames()[0]));
    for (auto _ : state) {
        CTemplate read(quiet);
        read.SetFilePath(file.path());
        read.SetFilename(file.fileName());
        if (!read.XMLToObject())
            state.SkipWithError("the template was not read");
        state.PauseTiming(); // what reading costs
        read.Groups().Clear();
        state.ResumeTiming();
    }
    state.counters["characters"] = static_cast<double>(file.size());
}

const bool kRegistered = [] {
    const QString group = QStringLiteral("schedules/build 100000 cells/");
    const auto add = [&](const char* name, auto&&... how) {
        benchmark::RegisterBenchmark((group + name).toUtf8().constData(), how...)
            ->Unit(benchmark::kMillisecond)
            ->MinTime(2);
    };
    add("own", Build, 500, false);
    add("tags as rows", Build, 500, true);
    add("of 200000 cells", Build, 1'000, false);
    add("template of that size read", ReadTemplate, 500);
    return true;
}();

} // namespace

} // namespace schedules::bench
