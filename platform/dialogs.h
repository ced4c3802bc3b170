// Message boxes and the choice of files and folders: the one way by which the program asks or
// tells.
//
// Without a user (scheduled publishing) nothing may wait for an answer: after SetUnattended, a box
// writes its text to standard error and answers by itself, and choices come back as cancelled.
#pragma once

#include <QString>

class QWidget;

// From now on standard dialogs and buttons speak Spanish, with the toolkit's own translation where
// it is installed. Called once, when the application object stands.
void LoadToolkitTexts();

enum class BoxIcon { None, Information, Question, Warning, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

// Modal over the active window; the text is plain, whatever it holds. The answer of a closed box is
// `defaultAnswer`, or No with YesNo.
BoxAnswer MsgBox(const QString& text, BoxIcon icon, BoxButtons buttons, BoxAnswer defaultAnswer,
                 const QString& title);

// The everyday box with one button.
void MsgBox(const QString& text, BoxIcon icon, const QString& title);

// From now on boxes are answered without a user: Ok, or No where there is a choice.
void SetUnattended();
bool IsUnattended();

// The chosen folder without a trailing separator unless it is the root; empty on cancel.
QString BrowseFolder(QWidget* form, const QString& title);

// A picture file that exists, or empty on cancel. `folder` is where the dialog starts; where it is
// empty or missing, the user's own place for pictures.
QString BrowsePicture(QWidget* form, const QString& title, const QString& folder);
