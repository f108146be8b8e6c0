// Reading and storing single values from the command line.

#include "host/ProjectProgram.h"
#include "host/cli/ProjectCommands.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace schedules::host::testing {

namespace {

struct SchedhostValues : ProjectProgram
{
    void ExpectSet(const QStringList& what)
    {
        const Outcome run = On("set", what);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "");
    }
};

} // namespace

TEST_F(SchedhostValues, GetPrintsTheValuesThatThereAreWithTheirUnits)
{
    EXPECT_EQ(Printed("get", {"p-1"}),
              "PUMPS/Design/Flow\t12\tm³/h\nPUMPS/Design/Head\t48\tm\nPUMPS/Design/Service\tFüllen\t\n");
    EXPECT_EQ(Printed("get", {"F-1"}), "");
}

TEST_F(SchedhostValues, GetPrintsThemAsJson)
{
    const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(Printed("get", {"P-1", "--json"})));
    EXPECT_EQ(json.array(), QJsonDocument::fromJson(R"([
        {"item": "PUMPS/Design/Flow", "value": "12", "unit": "m³/h", "version": 1},
        {"item": "PUMPS/Design/Head", "value": "48", "unit": "m", "version": 1},
        {"item": "PUMPS/Design/Service", "value": "Füllen", "unit": "", "version": 1}])")
                                .array());
    EXPECT_EQ(Printed("get", {"F-1", "--json"}), "[]\n");
}

TEST_F(SchedhostValues, GetPrintsOneValueByLocationAndByName)
{
    EXPECT_EQ(Printed("get", {"P-2", kFlow}), "13\n");
    EXPECT_EQ(Printed("get", {"P-2", "pumps/design/FLOW"}), "13\n");
    EXPECT_EQ(Printed("get", {"P-2", "flow"}), "13\n") << "fans have another one of this name";
}

TEST_F(SchedhostValues, GetPrintsOneValueAsJson)
{
    const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(Printed("get", {"P-2", "Flow", "--json"})));
    EXPECT_EQ(json,
              QJsonDocument::fromJson(R"({"item": "PUMPS/Design/Flow", "value": "13", "unit": "m³/h", "version": 1})"));
}

TEST_F(SchedhostValues, AValueThatIsNotStoredIsEmpty)
{
    EXPECT_EQ(Printed("get", {"P-2", "Service"}), "\n");
    EXPECT_EQ(Printed("get", {"P-2", "Service", "--json"}),
              "{\"item\":\"PUMPS/Design/Service\",\"value\":\"\",\"unit\":\"\",\"version\":0}\n");
}

TEST_F(SchedhostValues, AnAmbiguousNameIsTold)
{
    const char* why = "several data items have the name Note: name one by its location, such as PUMPS/Motor/Note";
    EXPECT_EQ(Failed("get", {"P-1", "Note"}), why);
    EXPECT_EQ(Failed("set", {"P-1", "Note", "new"}), why);
}

TEST_F(SchedhostValues, ATagOrADataItemThatIsNotThereIsTold)
{
    for (const QString& command : {QStringLiteral("get"), QStringLiteral("set")}) {
        const QStringList value = command == "set" ? QStringList{"1"} : QStringList();
        EXPECT_EQ(Failed(command, QStringList{"P-9", "Flow"} + value), "there is no tag P-9");
        EXPECT_EQ(Failed(command, QStringList{"P-1", "Weight"} + value), "there is no data item Weight for P-1");
    }
    EXPECT_EQ(Failed("get", {"P-9"}), "there is no tag P-9");
}

TEST_F(SchedhostValues, SetStoresWhatGetReads)
{
    ExpectSet({"P-1", kFlow, "12.5"});
    EXPECT_EQ(Printed("get", {"P-1", "Flow"}), "12.5\n");
    ExpectSet({"p-1", "flow", " 13 m³/h, Größe → 北 "});
    EXPECT_EQ(Printed("get", {"P-1", "Flow"}), " 13 m³/h, Größe → 北 \n");
    ExpectSet({"P-2", kMotorNote, "the first one"});
    EXPECT_EQ(Printed("get", {"P-2", kMotorNote}), "the first one\n");
    EXPECT_EQ(Printed("get", {"P-2", "Flow"}), "13\n") << "nothing else is changed";
}

TEST_F(SchedhostValues, SetTakesANegativeNumberAndAnEmptyText)
{
    ExpectSet({"P-1", "Flow", "-20.5"});
    EXPECT_EQ(Printed("get", {"P-1", "Flow"}), "-20.5\n");
    ExpectSet({"P-1", "Flow", ""});
    EXPECT_EQ(Printed("get", {"P-1", "Flow", "--json"}),
              "{\"item\":\"PUMPS/Design/Flow\",\"value\":\"\",\"unit\":\"m³/h\",\"version\":3}\n");
}

TEST_F(SchedhostValues, AValueThatIsStoredAlreadyIsNotStoredAgain)
{
    ExpectSet({"P-1", "Flow", "12"});
    EXPECT_EQ(Stored()->Values({"P-1"}, {kFlow}).first().first(), (StoredValue{"12", 1}));
}

TEST_F(SchedhostValues, AnItemThatMayNotBeEditedIsToldAndLeft)
{
    EXPECT_EQ(Failed("set", {"P-1", "Service", "empty"}), "PUMPS/Design/Service may not be edited");
    EXPECT_EQ(StoredText("P-1", kService), "Füllen");
}

TEST_F(SchedhostValues, ACheckBoxTakesFlagsAlone)
{
    const QString spare = QStringLiteral("PUMPS/Vendor/Spare");
    Stored()->Put({.items = {{spare, "Spare", "Vendor", "CHECKBOX", ""}}});
    for (const auto& [said, stored] : {std::pair("1", "1"), std::pair("FALSE", "0"), std::pair("true", "1")}) {
        ExpectSet({"P-1", "Spare", said});
        EXPECT_EQ(StoredText("P-1", spare), stored) << said;
    }
    EXPECT_EQ(Failed("set", {"P-1", "Spare", "yes"}),
              "PUMPS/Vendor/Spare is a check box, which takes 1 or 0, not 'yes'");
    EXPECT_EQ(StoredText("P-1", spare), "1");
}

TEST_F(SchedhostValues, AValueThatSomebodyElseStoresMeanwhileIsLeftAndExitCode3)
{
    const auto project = Stored();
    project->Save({{"P-1", kFlow, "99", 1}}); // after this program has read version 1
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(StoreValue(*project, {"P-1", kFlow, "12.5", 1}), 3);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "somebody else has stored '99' at the same moment; nothing was changed\n");
    EXPECT_EQ(StoredText("P-1", kFlow), "99");
    EXPECT_EQ(StoreValue(*project, {"P-1", kFlow, "12.5", 2}), 0);
    EXPECT_EQ(StoredText("P-1", kFlow), "12.5");
}

} // namespace schedules::host::testing
