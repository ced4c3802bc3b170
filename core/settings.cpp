#include "core/settings.h"

#include "core/addresses.h"
#include "core/flavour.h"
#include "platform/fileops.h"
#include "platform/usersettings.h"
#include "text/numbers.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <array>
#include <limits>
#include <variant>

QString DBpath;
QString DBname;
int StorageMethod;
QString StoragePath;
QString FTPUser;
QString FTPPass;
QString FTPServer;
QString FTPPath;
QString LastWebUpdate;
QString DeletedItems;
QString DefaultLang;
QString UserLangs;
QString TemplateLangs;
QString AppPath;
bool MultiUser;
bool ShowAPIlogo;

int TemplateNum;
QString TemplPath;
int TemplMaxEmph;
int TemplColorSet;

QString UIDefPictPath;
bool UIAutoSave;
QString UIPassword;
QString UICurrentLang;

QString VSuser;
QString VSpass;
QString VSurl;
QString VSname;

int LoanPerc;
QString LoanInterest;
int LoanYears;

namespace {

constexpr char kParams[] = "Params";
constexpr char kTemplates[] = "Templates";
constexpr char kUI[] = "UI";
constexpr char kPortal[] = "Vestalia";
constexpr char kLoan[] = "LoanCalc";

// What becomes of a value that was read, and whether SaveSettings writes it.
enum class Care { None, AddSeparator, ReadOnly };

struct Setting {
    const char* section;
    const char* key;
    std::variant<QString*, int*, bool*> value;
    QString (*defaultText)(); // may look at settings further up
    Care care = Care::None;
};

QString Empty() {
    return {};
}
QString No() {
    return QStringLiteral("0");
}
QString Yes() {
    return QStringLiteral("1");
}
QString Spanish() {
    return QStringLiteral("ES");
}

// Sections and keys are stored in the users' settings and not to be changed. Read and written from
// top to bottom.
constexpr std::array kSettings{
    Setting{kParams, "DBpath", &DBpath, [] { return ProgramFolder() + "Data/"; }},
    Setting{kParams, "DBname", &DBname, [] { return QStringLiteral("Zandora.zdb"); }},
    Setting{kParams, "StorageMethod", &StorageMethod, No},
    Setting{kParams, "StoragePath", &StoragePath, [] { return DBpath + "temp/"; },
            Care::AddSeparator},
    Setting{kParams, "FTPUser", &FTPUser, Empty},
    Setting{kParams, "FTPPass", &FTPPass, Empty},
    Setting{kParams, "FTPServer", &FTPServer, Empty},
    Setting{kParams, "FTPPath", &FTPPath, [] { return QStringLiteral("/"); }},
    Setting{kTemplates, "TemplateNum", &TemplateNum, No},
    Setting{kTemplates, "TemplPath", &TemplPath, [] { return DBpath + "Default.zdt"; }},
    Setting{kTemplates, "TemplMaxEmph", &TemplMaxEmph, [] { return QStringLiteral("6"); }},
    Setting{kUI, "UIDefPictPath", &UIDefPictPath, Empty, Care::AddSeparator},
    Setting{kUI, "UIAutoSave", &UIAutoSave, Yes},
    Setting{kUI, "UIPassword", &UIPassword, Empty},
    Setting{kParams, "LastWebUpdate", &LastWebUpdate, Empty},
    Setting{kParams, "DeletedItems", &DeletedItems, Empty},
    Setting{kUI, "UICurrentLang", &UICurrentLang, Spanish},
    Setting{kParams, "DefaultLang", &DefaultLang, Spanish},
    Setting{kParams, "UserLangs", &UserLangs, Spanish},
    Setting{kParams, "TemplateLangs", &TemplateLangs, Spanish},
    Setting{kParams, "AppPath", &AppPath, [] { return ProgramFolder(); }},
    Setting{kParams, "MultiUser", &MultiUser, No},
    Setting{kPortal, "VSuser", &VSuser, Empty},
    Setting{kPortal, "VSpass", &VSpass, Empty},
    Setting{kPortal, "VSurl", &VSurl, [] { return Maker.portalHost; }, Care::ReadOnly},
    Setting{kPortal, "VSname", &VSname, [] { return QStringLiteral("Vestalia"); }, Care::ReadOnly},
    Setting{kLoan, "LoanPerc", &LoanPerc, [] { return QStringLiteral("100"); }},
    Setting{kLoan, "LoanInterest", &LoanInterest, [] { return QStringLiteral("3.5"); }},
    Setting{kLoan, "LoanYears", &LoanYears, [] { return QStringLiteral("35"); }},
    Setting{kTemplates, "TemplColorSet", &TemplColorSet, Yes},
};

// Read and written with the company's data, apart from the table.
constexpr char kShowAPIlogo[] = "ShowAPIlogo";

// Written by the installer under the generic flavour's name, whatever flavour runs.
constexpr char kInstalledApplication[] = "Lumenta";
constexpr char kInstalledVersion[] = "UpdateCompiledVersion";

// A whole number of 16 bits; `defaultText` stands in for anything else.
int ReadInteger(const QString& text, const QString& defaultText) {
    using Limits = std::numeric_limits<short>;
    bool isNumber = false;
    const double value = RoundHalfEven(text.trimmed().toDouble(&isNumber));
    const bool fits = value >= Limits::min() && value <= Limits::max();
    return isNumber && fits ? static_cast<int>(value) : defaultText.toInt();
}

// Every number but 0 is true, and so is the word.
bool ReadFlag(const QString& text, const QString& defaultText) {
    const QString trimmed = text.trimmed();
    bool isNumber = false;
    const double value = trimmed.toDouble(&isNumber);
    if (isNumber) {
        return value != 0;
    }
    if (trimmed.compare(u"true", Qt::CaseInsensitive) == 0) {
        return true;
    }
    return trimmed.compare(u"false", Qt::CaseInsensitive) != 0 && defaultText == Yes();
}

QString FlagText(bool flag) {
    return flag ? Yes() : No();
}

void ReadSetting(const Setting& setting) {
    const QString defaultText = setting.defaultText();
    const QString text = GetSetting(AppName, setting.section, setting.key, defaultText);
    if (auto* const* number = std::get_if<int*>(&setting.value)) {
        **number = ReadInteger(text, defaultText);
    } else if (auto* const* flag = std::get_if<bool*>(&setting.value)) {
        **flag = ReadFlag(text, defaultText);
    } else {
        *std::get<QString*>(setting.value) =
            setting.care == Care::AddSeparator ? WithSeparator(text) : text;
    }
}

void WriteSetting(const Setting& setting) {
    QString text;
    if (auto* const* number = std::get_if<int*>(&setting.value)) {
        text = QString::number(**number);
    } else if (auto* const* flag = std::get_if<bool*>(&setting.value)) {
        text = FlagText(**flag);
    } else {
        text = *std::get<QString*>(setting.value);
    }
    SaveSetting(AppName, setting.section, setting.key, text);
}

} // namespace

QString ProgramFolder() {
    return WithSeparator(QCoreApplication::applicationDirPath());
}

void LoadSettings() {
    BeginSettings();
    for (const Setting& setting : kSettings) {
        ReadSetting(setting);
    }
    CommitSettings();
}

void SaveSettings() {
    BeginSettings();
    for (const Setting& setting : kSettings) {
        if (setting.care != Care::ReadOnly) {
            WriteSetting(setting);
        }
    }
    CommitSettings();
}

void AddDeletedItem(DeletedItem kind, const QString& key) {
    const QString entry = QLatin1Char(static_cast<char>(kind)) + key;
    if (DeletedItems.contains(entry, Qt::CaseInsensitive)) {
        return;
    }
    DeletedItems += (DeletedItems.isEmpty() ? QString() : QStringLiteral("|")) + entry;
    SaveSetting(AppName, kParams, "DeletedItems", DeletedItems);
}

void SetUICurrentLang(const QString& lang) {
    UICurrentLang = lang;
}

void SetTemplateLangs(const QString& langs) {
    TemplateLangs = langs;
}

void SetUserLangs(const QString& userLangs, const QString& defaultLang) {
    UserLangs = userLangs;
    DefaultLang = defaultLang;
}

void SetLastWebUpdate(const QString& dateText) {
    LastWebUpdate = dateText;
}

void ClearDeletedItems() {
    DeletedItems.clear();
}

void SetStoreFolder(const QString& folder) {
    DBpath = WithSeparator(folder);
    TemplPath = DBpath + QFileInfo(TemplPath).fileName();
}

void SetTemplate(const QString& path, int number, int maxEmphasised) {
    TemplPath = path;
    TemplateNum = number;
    TemplMaxEmph = maxEmphasised;
}

void SetColorSet(int number) {
    TemplColorSet = number;
}

void SetStorage(StorageKind method, const QString& folder) {
    StorageMethod = method;
    StoragePath = WithSeparator(folder);
}

void SetFTP(const QString& server, const QString& path, const QString& user, const QString& pass) {
    FTPServer = server;
    FTPPath = path;
    FTPUser = user;
    FTPPass = pass;
}

void SetPictureFolder(const QString& folder) {
    UIDefPictPath = WithSeparator(folder);
}

void SetPassword(const QString& password) {
    UIPassword = password;
}

void SetPortalAccount(const QString& user, const QString& pass) {
    VSuser = user;
    VSpass = pass;
}

void LoadShowAPIlogo() {
    ShowAPIlogo = ReadFlag(GetSetting(AppName, kParams, kShowAPIlogo, No()), No());
}

void SaveShowAPIlogo(bool show) {
    ShowAPIlogo = show;
    SaveSetting(AppName, kParams, kShowAPIlogo, FlagText(show));
}

QString ReadInstalledVersion() {
    return GetSetting(kInstalledApplication, kParams, kInstalledVersion);
}
