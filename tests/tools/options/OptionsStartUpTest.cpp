// What happens when a host initialises the options editor: what it is asked, and which texts the controls get.

#include "OptionsTest.h"
#include "common/CompiledTable.h"
#include "support/TraceLog.h"

#include <QLabel>

#include <map>

namespace schedules::testing {

using OptionsStartUp = OptionsTest;

namespace {

const std::string kModule = "request ctlSchedOptions -> Host: GetResourceModule 0 3";
const std::string kAnnounced = "request ctlSchedOptions -> Host: INITIALIZESCHEDOPTIONS 0 0 [2 Caller=]";
const std::string kError = "event ctlSchedOptions -> Framework: ErrorMessage 20 9 ";

std::string Once()
{
    return kModule + '\n' + kAnnounced;
}

std::string Twice()
{
    return kModule + '\n' + Once();
}

/// What a control shows, and its tool tip behind a slash.
std::string TextsOf(const QWidget& control)
{
    const QVariant title = control.property("title");
    const QString text = title.isValid() ? title.toString() : control.property("text").toString();
    return (control.toolTip().isEmpty() ? text : text + " / " + control.toolTip()).toStdString();
}

} // namespace

TEST_F(OptionsStartUp, AsksForTheModuleAndAnnouncesTheEditor)
{
    host.replies["GetResourceModule"] = QString();
    Initialize();
    EXPECT_EQ(Log(), Once());
    EXPECT_EQ(ResourceModule(), 0);
}

TEST_F(OptionsStartUp, AsksAgainAfterTheReply0AndLoadsNoModule)
{
    Initialize();
    EXPECT_EQ(Log(), Twice());
    EXPECT_EQ(ResourceModule(), 0);
}

TEST_F(OptionsStartUp, AsksOnceWhenTheReplyIsNoNumber)
{
    for (const char* reply : {"", "  ", "\t", "abc", "12 a", "1,5", "0x", "--1", "nan", "inf", "-inf"}) {
        host.replies["GetResourceModule"] = reply;
        host.sent.clear();
        Initialize();
        EXPECT_EQ(Log(), Once()) << reply;
        EXPECT_EQ(ResourceModule(), 0) << reply;
    }
}

TEST_F(OptionsStartUp, AsksAgainAfterANumberAndTakesTheHandle)
{
    for (const char* reply : {"12", " 12 ", "+12", "12.0", "1.2e1"}) {
        SetResourceModule(0);
        host.replies["GetResourceModule"] = reply;
        host.sent.clear();
        Initialize();
        EXPECT_EQ(Log(), Twice()) << reply;
        EXPECT_EQ(ResourceModule(), 12) << reply;
    }
}

TEST_F(OptionsStartUp, TheSecondReplyIsTheHandle)
{
    host.replies["GetResourceModule"] = "1";
    host.onSend = [this](const QString&) { host.replies["GetResourceModule"] = "34"; };
    Initialize();
    EXPECT_EQ(Log(), Twice());
    EXPECT_EQ(ResourceModule(), 34);
}

TEST_F(OptionsStartUp, ASecondReply0LoadsNoModule)
{
    host.replies["GetResourceModule"] = "1";
    host.onSend = [this](const QString&) { host.replies["GetResourceModule"] = "0"; };
    Initialize();
    EXPECT_EQ(Log(), Twice());
    EXPECT_EQ(ResourceModule(), 0);
}

TEST_F(OptionsStartUp, ASecondReplyThatIsNoHandleIsToldAndEndsTheStartUp)
{
    const std::map<QString, std::string> errors{
        {"", "Type mismatch"}, {"abc", "Type mismatch"}, {"99999999999", "Overflow"}, {"inf", "Type mismatch"}};
    for (const auto& [reply, error] : errors) {
        host.replies["GetResourceModule"] = "1";
        host.onSend = [&, second = reply](const QString&) { host.replies["GetResourceModule"] = second; };
        host.sent.clear();
        Initialize();
        EXPECT_EQ(Names(), "GetResourceModule GetResourceModule ErrorMessage") << reply.toStdString();
        const auto& parameters = host.sent.back().message->parameters.Items();
        EXPECT_EQ(parameters.at(2).value.toInt(), error == "Overflow" ? 6 : 13);
        EXPECT_EQ(parameters.at(3).value.toString(), "Schedules.ctlSchedOptions.IToolUI_Initialize");
        EXPECT_EQ(Log().find(kError), Twice().size() - kAnnounced.size());
        EXPECT_EQ(ResourceModule(), 0);
    }
}

TEST_F(OptionsStartUp, AnEditorAfterTheFirstOneDoesNotAskForTheModule)
{
    SetResourceModule(12);
    Initialize();
    EXPECT_EQ(Log(), kAnnounced);
}

TEST_F(OptionsStartUp, IsTraced)
{
    const TraceLog trace;
    {
        ctlSchedOptions traced(&user);
        traced.IToolUI_Initialize(&host, "Host");
        traced.IToolUI_Activate();
        traced.IToolUI_Deactivate(false);
    }
    EXPECT_EQ(trace.lines.join(' ').toStdString(),
              "Schedules.ctlSchedOptions.UserControl_Initialize Schedules.ctlSchedOptions.IToolUI_Initialize "
              "Schedules.ctlSchedOptions.IToolUI_Activate Schedules.ctlSchedOptions.IToolUI_Deactivate "
              "Schedules.ctlSchedOptions.UserControl_Terminate");
}

TEST_F(OptionsStartUp, TheScreenIsEmptyBeforeTheActivation)
{
    Initialize();
    EXPECT_EQ(Screen(), " / \n\nMissing: 1040 / [ ]\n\n\ncmdOK cmdCancel");
}

TEST_F(OptionsStartUp, ThatAHostDoesNotListenToIsToldForEachRequest)
{
    host.failing = {"GetResourceModule", "INITIALIZESCHEDOPTIONS"};
    Initialize();
    EXPECT_EQ(Names(), "GetResourceModule ErrorMessage INITIALIZESCHEDOPTIONS ErrorMessage");
    for (const auto& sent : host.sent) {
        if (sent.message->name == "ErrorMessage") {
            EXPECT_EQ(sent.envelope.recipient, "Framework");
            for (const int sourceOrProcedure : {1, 3})
                EXPECT_EQ(sent.message->parameters.Items().at(sourceOrProcedure).value.toString(),
                          "Schedules.ctlSchedOptions.SendRequestToOwner");
        }
    }
}

TEST_F(OptionsStartUp, XmlIsTakenInAndNothingFollows)
{
    Start();
    const std::string before = Screen();
    editor->IToolUI_XML("<Template/>");
    editor->IToolUI_XML("nonsense");
    EXPECT_EQ(Screen(), before);
    EXPECT_EQ(Log(), "");
}

// Texts.

TEST_F(OptionsStartUp, WithoutAModuleEveryControlWithAKeyShowsItsNumber)
{
    Initialize();
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdApply")), "Missing: 1025");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdCancel")), "Missing: 1026");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdOK")), "Missing: 1027");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdItemMove", 0)), "Missing: 1028 / Missing: 1029");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdItemMove", 1)), "Missing: 1030 / Missing: 1031");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdGroupMove", 1)), "Missing: 1032 / Missing: 1033");
    EXPECT_EQ(TextsOf(*Find<QCheckBox>("chkShowGroupName")), "Missing: 1034");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdGroupMove", 0)), "Missing: 1035 / Missing: 1036");
    EXPECT_EQ(TextsOf(*Find<QLabel>("Label1", 2)), "Missing: 1037");
    EXPECT_EQ(TextsOf(*Find<QLabel>("Label1", 1)), "Missing: 1038");
    EXPECT_EQ(TextsOf(*Find<QLabel>("lblGroupName")), "Missing: 1039");
    EXPECT_EQ(TextsOf(*Find<QGroupBox>("fraGroup")), "Missing: 1040");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdSaveAs")), "Missing: 1041");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdDelete")), "Missing: 1042");
    EXPECT_EQ(TextsOf(*Find<QLabel>("Label2")), "Missing: 1043");
    EXPECT_EQ(TextsOf(*Find<QLabel>("lblTemplFileName")), "Missing: 1044");
    EXPECT_EQ(TextsOf(*Find<QLabel>("Label1", 0)), "Missing: 1045");
}

TEST_F(OptionsStartUp, ControlsWithoutAKeyHaveTheTextsOfTheirDesign)
{
    Initialize();
    EXPECT_EQ(TextsOf(*Find<QGroupBox>("fraItem")), "User-Defined Data Item:");
    EXPECT_EQ(TextsOf(*Find<QLabel>("lblDisplayName")), "Display Name:");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdUpdateUDItemName")), "Update");
    EXPECT_EQ(TextsOf(*Find<QPushButton>("cmdResetUDItemName")), "Reset");
    EXPECT_EQ(TextsOf(*Find<QLabel>("lblLegend")), "(*) Indicates user-defined data item");
}

class OptionsTexts : public OptionsTest
{
protected:
    /// The texts of all controls that have one, in a language's own order of reading.
    std::string TextsIn(const char* language)
    {
        const int handle = OpenResourceModule(LanguageFile(language));
        EXPECT_NE(handle, 0);
        host.replies["GetResourceModule"] = QString::number(handle);
        Initialize();
        QStringList texts;
        for (const int index : {0, 1, 2})
            texts += QString::fromStdString(TextsOf(*Find<QLabel>("Label1", index)));
        for (const char* name : {"lblTemplFileName", "Label2", "chkShowGroupName", "fraGroup", "lblGroupName",
                                 "lblLegend", "fraItem", "lblDisplayName", "cmdUpdateUDItemName", "cmdResetUDItemName",
                                 "cmdSaveAs", "cmdDelete", "cmdOK", "cmdCancel", "cmdApply"})
            texts += QString::fromStdString(TextsOf(*Find<QWidget>(name)));
        for (const char* name : {"cmdGroupMove", "cmdItemMove"})
            for (const int index : {0, 1})
                texts += QString::fromStdString(TextsOf(*Find<QPushButton>(name, index)));
        CloseResourceModule(handle);
        return texts.join('\n').toStdString();
    }
};

TEST_F(OptionsTexts, AreEnglish)
{
    EXPECT_EQ(TextsIn("en"),
              "&Template:\nG&roups:\nData &items:\nTemplate file name:\n"
              "Check the groups and data items that the schedule shows.\nShow &group name\nGroup\n"
              "Group name:\n(*) Indicates user-defined data item\nUser-Defined Data Item:\nDisplay Name:\n"
              "Update\nReset\n&Save as…\n&Delete\nOK\nCancel\n&Apply\n"
              "Up / Move the group up\nDown / Move the group down\n"
              "Up / Move the data item up\nDown / Move the data item down");
}

TEST_F(OptionsTexts, AreGerman)
{
    EXPECT_EQ(
        TextsIn("de"),
        "&Vorlage:\nG&ruppen:\n&Datenelemente:\nDateiname der Vorlage:\n"
        "Aktivieren Sie die Gruppen und Datenelemente, die die Liste anzeigen soll.\n&Gruppenname anzeigen\nGruppe\n"
        "Gruppenname:\n(*) Benutzerdefiniertes Datenelement\nBenutzerdefiniertes Datenelement:\nAnzeigename:\n"
        "Aktualisieren\nZurücksetzen\n&Speichern unter…\n&Löschen\nOK\nAbbrechen\nÜ&bernehmen\n"
        "Auf / Gruppe nach oben verschieben\nAb / Gruppe nach unten verschieben\n"
        "Auf / Datenelement nach oben verschieben\nAb / Datenelement nach unten verschieben");
}

TEST_F(OptionsTexts, AreFrench)
{
    EXPECT_EQ(
        TextsIn("fr"),
        "&Modèle\u00A0:\nG&roupes\u00A0:\n&Données\u00A0:\nNom du fichier du modèle\u00A0:\n"
        "Cochez les groupes et les données que la nomenclature doit afficher.\nAfficher le nom du &groupe\nGroupe\n"
        "Nom du groupe\u00A0:\n(*) Élément de données personnalisé\nÉlément de données personnalisé\u00A0:\nNom "
        "affiché\u00A0:\n"
        "Mettre à jour\nRétablir\n&Enregistrer sous…\n&Supprimer\nOK\nAnnuler\nA&ppliquer\n"
        "Monter / Déplacer le groupe vers le haut\nDescendre / Déplacer le groupe vers le bas\n"
        "Monter / Déplacer la donnée vers le haut\nDescendre / Déplacer la donnée vers le bas");
}

TEST_F(OptionsTexts, OfTheCurrentTemplateAndGroupAreTranslated)
{
    const ModuleInUse module(LanguageFile("de"));
    Start();
    ClickGroup("Design");
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Aktuelle Vorlage:  Pumps");
    EXPECT_EQ(Find<QGroupBox>("fraGroup")->title(), "Design – Datenelemente");
}

} // namespace schedules::testing
