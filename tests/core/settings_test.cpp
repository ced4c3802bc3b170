#include "core/settings.h"

#include "core/flavour.h"
#include "platform/usersettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

class Settings : public testing::Test {
protected:
    void SetUp() override {
        LoadFlavour("/nowhere/");
        QFile::remove(SettingsPath(AppName));
    }
};

} // namespace

TEST_F(Settings, FirstRunHasTheDefaultsBelowTheProgramsFolder) {
    LoadSettings();
    EXPECT_EQ(StoragePath, ProgramFolder() + "Data/temp/");
    EXPECT_TRUE(UIAutoSave);
    EXPECT_EQ(UIDefPictPath, "");
    EXPECT_FALSE(QFileInfo::exists(SettingsPath(AppName))); // reading writes nothing
}

TEST_F(Settings, DefaultsFollowAMovedStoreAndFoldersGetTheirSeparator) {
    SaveSetting(AppName, "Params", "DBpath", "/srv/catalogo/");
    SaveSetting(AppName, "UI", "UIDefPictPath", "/fotos");
    LoadSettings();
    EXPECT_EQ(StoragePath, "/srv/catalogo/temp/");
    EXPECT_EQ(TemplPath, "/srv/catalogo/Default.zdt");
    EXPECT_EQ(UIDefPictPath, "/fotos/");
    SaveSetting(AppName, "Params", "DBpath", "/srv/sin");
    SaveSetting(AppName, "Params", "StoragePath", "/srv/web");
    LoadSettings();
    EXPECT_EQ(DBpath, "/srv/sin"); // joined as it stands
    EXPECT_EQ(StoragePath, "/srv/web/");
    SaveSettings();
    EXPECT_EQ(GetSetting(AppName, "Params", "StoragePath"), "/srv/web/");
}

TEST_F(Settings, WrittenValuesAreReadAgain) {
    LoadSettings();
    SetFTP("ftp.ejemplo.es", "/www", "usuario", " \"cláve; con=todo#\\n ");
    SetStorage(kStorageFTP, "/srv/web");
    SetStoreFolder("/srv/datos");
    SetTemplate("/otro/sitio.zdt", 3, 12);
    SetColorSet(2);
    SetUserLangs("ES|EN", "EN");
    SetPassword("%1");
    SaveSettings();
    SetFTP({}, {}, {}, {});
    LoadSettings();
    EXPECT_EQ(FTPPass, " \"cláve; con=todo#\\n ");
    EXPECT_EQ(StorageMethod, kStorageFTP);
    EXPECT_EQ(DBpath, "/srv/datos/");
    EXPECT_EQ(TemplPath, "/otro/sitio.zdt");
    EXPECT_EQ(TemplMaxEmph, 12);
    EXPECT_EQ(TemplColorSet, 2);
    EXPECT_EQ(UserLangs, "ES|EN");
    EXPECT_EQ(DefaultLang, "EN");
    EXPECT_EQ(UIPassword, "%1");
    EXPECT_EQ(GetSetting(AppName, "UI", "UIAutoSave"), "1");
    EXPECT_EQ(GetSetting(AppName, "Vestalia", "VSname", "absent"), "absent"); // read only
}

TEST_F(Settings, WhatIsNoNumberCountsAsItsDefault) {
    const std::pair<const char*, int> numbers[] = {{"8", 8}, {" 8 ", 8},   {"2.5", 2}, {"seis", 6},
                                                   {"", 6},  {"40000", 6}, {"-1", -1}};
    for (const auto& [text, value] : numbers) {
        SaveSetting(AppName, "Templates", "TemplMaxEmph", text);
        LoadSettings();
        EXPECT_EQ(TemplMaxEmph, value) << text;
    }
    const std::pair<const char*, bool> flags[] = {{"1", true},      {"0", false},   {"-1", true},
                                                  {"False", false}, {"TRUE", true}, {"x", true}};
    for (const auto& [text, value] : flags) {
        SaveSetting(AppName, "UI", "UIAutoSave", text);
        LoadSettings();
        EXPECT_EQ(UIAutoSave, value) << text;
    }
}

TEST_F(Settings, DeletionsAreOnDiskAtOnceAndOnlyOnce) {
    SaveSetting(AppName, "Params", "DeletedItems", "p3");
    LoadSettings();
    AddDeletedItem(DeletedItem::Product, "3");
    AddDeletedItem(DeletedItem::Picture, "3");
    AddDeletedItem(DeletedItem::Product, "123");
    AddDeletedItem(DeletedItem::Product, "12"); // found inside P123
    EXPECT_EQ(GetSetting(AppName, "Params", "DeletedItems"), "p3|I3|P123");
    ClearDeletedItems();
    SaveSettings();
    EXPECT_EQ(GetSetting(AppName, "Params", "DeletedItems", "absent"), "");
}

TEST_F(Settings, LogoFlagAndInstalledVersionStandApart) {
    SaveSetting("Lumenta", "Params", "UpdateCompiledVersion", "202611240000");
    LoadShowAPIlogo();
    EXPECT_FALSE(ShowAPIlogo);
    SaveShowAPIlogo(true);
    EXPECT_EQ(GetSetting(AppName, "Params", "ShowAPIlogo"), "1");
    LoadShowAPIlogo();
    EXPECT_TRUE(ShowAPIlogo);
    EXPECT_EQ(ReadInstalledVersion(), "202611240000");
}
