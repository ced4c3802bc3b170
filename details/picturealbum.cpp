#include "details/picturealbum.h"

#include "core/settings.h"
#include "details/assistance.h"
#include "details/languages.h"
#include "details/thumbnails.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controlevents.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "store/langvalues.h"
#include "store/openrecord.h"
#include "store/picturerecords.h"
#include "store/store.h"

namespace {

// Part of these that a file's ending must be; any part counts. What is no picture after all shows
// as a damaged one, and the user is told.
constexpr char kEndings[] = "bmp|jpg|jpeg|gif|BMP|JPG|JPEG|GIF";

Recordset& Rows() {
    return adcData[kCursorPictures];
}

int CurrentSlot() {
    return Rows().AbsolutePosition() - 1;
}

void UpdateAlbumToolbar(int slot) {
    const int count = Rows().RecordCount();
    const bool chosen = count >= 1 && slot >= 0;
    frmPictures->Button(kPictureAdd)->setEnabled(count < PictureLimit());
    frmPictures->Button(kPictureDel)->setEnabled(chosen);
    frmPictures->Button(kPictureChange)->setEnabled(chosen);
    frmPictures->Button(kPictureMoveUp)->setEnabled(chosen && slot > 0);
    frmPictures->Button(kPictureMoveDn)->setEnabled(chosen && slot < count - 1);
    for (QWidget* box : frmPictures->txtMLFields) {
        box->setEnabled(chosen);
    }
    frmPictures->fraLang->setEnabled(chosen);
    MarkSlot(chosen ? slot : -1);
}

void SelectSlot(int slot) {
    if (slot < 0 || slot >= Rows().RecordCount()) {
        return;
    }
    SavePictureIfChanged();
    Rows().SetAbsolutePosition(slot + 1);
    WaitForCursor(Rows());
    ShowPictureRecord();
    ShowCurrentPicture(slot);
    UpdateAlbumToolbar(slot);
}

void AddFile(const QString& path) {
    AddPicture(path);
    LoadThumbnails();
    ShowCurrentPicture(CurrentSlot());
    UpdateAlbumToolbar(CurrentSlot());
}

void DeleteCurrentPicture() {
    if (MsgBox("¿Confirma que desea eliminar la fotografía?", BoxIcon::Question, BoxButtons::YesNo,
               BoxAnswer::No, "Confirmación de Borrar Fotografía") != BoxAnswer::Yes) {
        return;
    }
    const int position = Rows().AbsolutePosition();
    AddDeletedItem(DeletedItem::Picture, frmPictures->txtPictureId->text());
    DeletePicture();
    EmptyThumbnail(position - 1);
    LoadThumbnails();
    ShowCurrentPicture(CurrentSlot());
    UpdateAlbumToolbar(CurrentSlot());
    // The picture that has moved up, or the one before where at most one follows: at the end of the
    // album the selection goes towards its beginning.
    SelectSlot(position < Rows().RecordCount() ? position - 1 : position - 2);
}

void ChangeCurrentPicture() {
    if (ChangePictureFile({}) == PictureResult::Done) {
        LoadThumbnail(CurrentSlot(), frmPictures->txtPicturePath->text());
        ShowCurrentPicture(CurrentSlot());
    }
}

void Move(int step) {
    const int from = Rows().AbsolutePosition();
    MovePicture(from, from + step);
    SwapThumbnails(from - 1, from - 1 + step);
    ShowCurrentPicture(CurrentSlot());
    UpdateAlbumToolbar(CurrentSlot());
}

void tlbPicture_ButtonClick(const QString& key) {
    LeaveAssistance(frmPictures);
    if (key == kPictureAdd) {
        AddFile({});
    } else if (key == kPictureDel) {
        DeleteCurrentPicture();
    } else if (key == kPictureChange) {
        ChangeCurrentPicture();
    } else if (key == kPictureMoveUp) {
        Move(-1);
    } else if (key == kPictureMoveDn) {
        Move(1);
    }
}

int SlotOf(const ClickArea* area) {
    const auto& areas = frmPictures->lblClickArea;
    return static_cast<int>(std::find(areas.begin(), areas.end(), area) - areas.begin());
}

// A picture dragged from one slot to another bubbles to its place; those between shift by one.
void DropSlot(int source, int target) {
    if (ProductIsReadOnly() || Rows().RecordCount() < 2 || source == target ||
        source >= Rows().RecordCount()) {
        return;
    }
    SelectSlot(source);
    target = std::min(target, Rows().RecordCount() - 1);
    for (int left = std::abs(target - source); left > 0; --left) {
        Move(target > source ? 1 : -1);
        DoEvents();
    }
}

bool IsPictureName(const QString& path) {
    return QString(kEndings).contains(path.mid(path.lastIndexOf(u'.') + 1).toLower());
}

void DropFiles(const QStringList& paths) {
    if (ProductIsReadOnly()) {
        return;
    }
    for (const QString& path : paths) {
        if (!IsPictureName(path)) {
            continue;
        }
        LeaveAssistance(frmPictures);
        if (Rows().RecordCount() >= PictureLimit()) {
            AddPicture(path); // tells the limit
            break;
        }
        AddFile(path);
    }
}

void optLang_Click(const QToolButton* button) {
    if (!LangButtonsReady || Tag(button) == UICurrentLang) {
        return;
    }
    SavePictureIfChanged();
    SetUICurrentLang(Tag(button));
    LoadPictureLangValues();
}

void Form_Activate() {
    const InputHold hold;
    ServeEvents();
    LoadThumbnails();
    Rows().MoveFirst();
    ShowPictureRecord();
    ArrangeLangButtons(frmPictures->fraLang, frmPictures->optLang);
    LoadPictureLangValues();
    ShowCurrentPicture(CurrentSlot());
    UpdateAlbumToolbar(CurrentSlot());
}

void Form_Unload(bool& cancel) {
    cancel = !SaveBeforeEnd(SavePictureIfChanged);
    if (cancel) {
        return;
    }
    ShowPictureCount();
    ForgetPictureFolder();
}

QString OpenPictureId() {
    return frmPictures->txtPictureId->text();
}

void Connect(PicturesForm& form) {
    for (const auto key :
         {kPictureAdd, kPictureDel, kPictureChange, kPictureMoveUp, kPictureMoveDn}) {
        QObject::connect(form.Button(key), &QAction::triggered, &form,
                         [key] { tlbPicture_ButtonClick(key); });
    }
    for (int slot = 0; slot < static_cast<int>(form.lblClickArea.size()); ++slot) {
        QObject::connect(form.lblClickArea[slot], &ClickArea::clicked, &form,
                         [slot] { SelectSlot(slot); });
        QObject::connect(form.lblClickArea[slot], &ClickArea::Dropped, &form,
                         [slot](const ClickArea* source) { DropSlot(SlotOf(source), slot); });
    }
    QObject::connect(form.lblOleDropZone, &DropZone::FilesDropped, &form, DropFiles);
    QObject::connect(form.lblOleDropZone, &DropZone::DraggedOver, &form,
                     [](const QStringList& paths, bool& accept) {
                         accept = !ProductIsReadOnly() &&
                                  std::any_of(paths.begin(), paths.end(), IsPictureName);
                     });
    for (QToolButton* button : form.optLang) {
        QObject::connect(button, &QToolButton::clicked, &form, [button] { optLang_Click(button); });
    }
    QObject::connect(&form, &Dialog::Activated, &form, Form_Activate);
    QObject::connect(&form, &Dialog::Unload, &form, Form_Unload);

    auto* events = new ControlEvents(&form);
    for (QWidget* box : form.txtMLFields) {
        events->Watch(box);
    }
    ConnectAssistance({form.fraLangAssist, form.lblToTranslate, form.lblLangScroll,
                       form.txtMLFields, TextTable::Pictures},
                      events, OpenPictureId);
}

} // namespace

void ShowPictureAlbum() {
    LoadPictures();
    PicturesForm form(frmMain);
    Connect(form);
    form.fraReadOnly->setVisible(ProductIsReadOnly());
    form.tlbPicture->setEnabled(!ProductIsReadOnly());
    form.setWindowTitle("Fotografías - " + frmMain->txtProductRef->text());
    form.exec();
}
