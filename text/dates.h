// Dates as text. Two spellings: the date text that the user reads and the settings keep, and the
// ISO 8601 text to the second ("2026-11-24T13:45:07") in which the store keeps them, so that they
// sort.
//
// A moment is what the clock on the wall shows, without a zone. It is carried as UTC, so that every
// text is a valid moment, also in the hour that summer time leaves out; only moments made here are
// compared with each other.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringView>
#include <optional>

// Day, month and year in the locale's order and separators, the year with four digits, then a
// blank and hours, minutes and seconds ("24/11/2026 13:45:07"). ReadDate reads it back exactly.
QString DateText(const QDateTime& moment);

// The date alone, in the locale's short form with a four-digit year ("24/11/2026").
QString ShortDateText(const QDate& date);

// ISO 8601 to the second.
QString StoredDateText(const QDateTime& moment);

// Reads DateText, ShortDateText and ISO 8601 with "T" or a blank between date and time, with or
// without a time or its seconds; days, months and hours may lack their leading zero. Nothing for
// anything else.
std::optional<QDateTime> ReadDate(QStringView text);

// A stored date as screens show it, and back; a text that is no date stays as it is.
QString ShownDate(const QString& stored);
QString StoredDate(const QString& shown);

// The clock of the whole program, to the second.
QDateTime Now();

// Seconds since midnight, with fractions.
double SecondsOfDay();
