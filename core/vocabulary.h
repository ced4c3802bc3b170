// The nouns of the trade in every text: placeholders such as %PRODSING% are expanded from the
// flavour when a form or a message is about to appear. Owns Messages.
#pragma once

#include <QString>
#include <array>

class QWidget;

// Places in Messages, named by what the text is for.
enum Message {
    kMessagePictureCount = 0, // %1 of pictures
    kMessageListed = 1,       // %1 of products
    kMessageFeatured = 2,     // %1 of products and their limit
    kMessageDelete = 3,       // question
    kMessageDeleteTitle = 4,
    kMessageGone = 5, // deleted by another user
    kMessageGoneTitle = 6,
    kMessagePictureLimit = 7, // stands behind the number
    kMessagePreviewTitle = 8,
    kMessagePrint = 9, // can't be printed
    kMessagePrintTitle = 10,
    kMessageMailSubject = 11,
    kMessageMail = 12, // can't be mailed
    kMessageMailTitle = 13,
    kMessageFeaturedLimit = 14, // stands behind the number
    kMessageReplaceOldest = 15, // question
    kMessageRefNeeded = 16,     // a reference must be unique
    kMessagePictureFolder = 17, // title of a choice
    kMessageCount = 18
};

// Expanded message templates, by Message; "%1" is left for the caller. Built once at start by
// BuildMessages, only read after.
extern std::array<QString, kMessageCount> Messages;

// Expands the placeholders of `text` in place; the result is the same text with its first character
// in upper case.
QString ExpandVocabulary(QString& text);

// Rewrites captions and tool tips of all controls of a form. A label's tool tip keeps its
// placeholders: its expansion is thrown away. On frmMain the category label and tip follow, on
// frmCorpInfo the logo box.
void ApplyCaptions(QWidget* form);

void BuildMessages();
