// The company's one row in memory. Owns CorpInfoData.
#pragma once

#include <QString>
#include <array>

inline constexpr int kRegisterLines = 7; // lines of mercantile-register data

// Names of the company's pictures in the store's folder, as stored.
inline constexpr char kCorpLogoFile[] = "CorpLogo.dat";
inline constexpr char kExtraPictureFile[] = "ExtraImage.dat";
inline constexpr char kFindUsMapFile[] = "FindUsMap.dat";

struct CorpInfoRecord {
    QString Name, CIF, Phone, Fax, Cellular, Address, PostalCode, Zone;
    QString CorpLogo;     // bare file name in the store's folder, or empty
    QString ExtraPicture; // the same
    QString ContactEmail;
    QString FindUsMap; // bare file name, or empty
    std::array<QString, kRegisterLines> MRinfo;
    QString LastUpdate; // ISO 8601 text
};

extern CorpInfoRecord CorpInfoData; // loaded at start and after each save

// Reads the row (a Null is empty) through cursor 1, and the setting ShowAPIlogo.
void LoadCorpInfo();

// Makes `record` the one in memory and writes it to the row, through cursor 1.
void SaveCorpInfo(const CorpInfoRecord& record);
