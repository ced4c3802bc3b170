// The settings: every key is a process-wide value under its own name, read once at start, written
// back together. Section, key, type and default of each stand in one table in the source. Values
// change through the setters here alone.
#pragma once

#include <QString>

// Ways of publishing, as stored.
enum StorageKind { kStorageLocal = 0, kStorageFTP = 1 };

// Between the codes of a list of languages, as stored here and in designs.
inline constexpr char16_t kLanguageSeparator = u'|';

// What is deleted, as stored.
enum class DeletedItem : char { Product = 'P', Picture = 'I' };

// Section Params. Folders end in "/".
extern QString DBpath;        // folder of the store; program folder + "Data/"
extern QString DBname;        // store file name; "Zandora.zdb"
extern int StorageMethod;     // a StorageKind: to StoragePath or to the FTP server
extern QString StoragePath;   // folder where the site is written; DBpath + "temp/"
extern QString FTPUser;       // empty logs in as anonymous
extern QString FTPPass;       // plain
extern QString FTPServer;     // host name or address
extern QString FTPPath;       // folder on the server; "/"
extern QString LastWebUpdate; // date text of the last finished publication; empty: never
extern QString DeletedItems;  // DeletedItem and key of things deleted since then, joined by "|"
extern QString DefaultLang;   // main language; "ES"
extern QString UserLangs;     // languages of the site, joined by kLanguageSeparator; "ES"
extern QString TemplateLangs; // languages of the chosen template, joined likewise; "ES"
extern QString AppPath;       // folder of the program
extern bool MultiUser;        // the store is shared: the list refreshes every minute
extern bool ShowAPIlogo;      // the company shows the association's logo

// Section Templates.
extern int TemplateNum;   // number of the chosen template in the configuration's list; 0
extern QString TemplPath; // template file; DBpath + "Default.zdt"
extern int TemplMaxEmph;  // how many products may be "En Portada" at once; 6
extern int TemplColorSet; // number of the chosen colour set; 1

// Section UI.
extern QString UIDefPictPath; // usual folder of the user's pictures, or empty
extern bool UIAutoSave;       // kept for the configuration; nothing acts on it
extern QString UIPassword;    // plain; empty: no password dialog
extern QString UICurrentLang; // language that the editor shows; "ES"

// Section Vestalia: the property portal.
extern QString VSuser;
extern QString VSpass; // plain
extern QString VSurl;  // host name; read only
extern QString VSname; // name for captions; "Vestalia"; read only

// Section LoanCalc: kept, read and written, used by nobody.
extern int LoanPerc;
extern QString LoanInterest;
extern int LoanYears;

// Folder of the running program, with trailing "/".
QString ProgramFolder();

// Reads all values but ShowAPIlogo; the flavour must be loaded. A value that is no number where one
// is expected counts as its default; StoragePath and UIDefPictPath get a missing trailing "/".
void LoadSettings();

// Writes all values but ShowAPIlogo, VSurl and VSname, as one write.
void SaveSettings();

// Adds kind and key to DeletedItems and writes that key at once, unless the entry occurs anywhere
// in it already. P12 also counts as present inside P123, on purpose: the stored list then holds the
// same entries whichever copy of the program has written it.
void AddDeletedItem(DeletedItem kind, const QString& key);

// Single values that other rooms change during the run; in memory until SaveSettings. Folders may
// lack their trailing "/".
void SetUICurrentLang(const QString& lang);
void SetTemplateLangs(const QString& langs);
void SetUserLangs(const QString& userLangs, const QString& defaultLang);
void SetLastWebUpdate(const QString& dateText);
void ClearDeletedItems();

// DBpath; TemplPath follows into that folder, keeping its file name. A template that lies elsewhere
// is set afterwards.
void SetStoreFolder(const QString& folder);

void SetTemplate(const QString& path, int number, int maxEmphasised);
void SetColorSet(int number);
void SetStorage(StorageKind method, const QString& folder);
void SetFTP(const QString& server, const QString& path, const QString& user, const QString& pass);
void SetPictureFolder(const QString& folder);
void SetPassword(const QString& password);
void SetPortalAccount(const QString& user, const QString& pass);

// ShowAPIlogo is read and written with the company's data, apart from the rest.
void LoadShowAPIlogo();
void SaveShowAPIlogo(bool show);

// The build that was installed, as the update service writes it; empty when unknown. Not ours to
// write.
QString ReadInstalledVersion();
