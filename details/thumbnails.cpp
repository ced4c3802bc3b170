#include "details/thumbnails.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "forms/look.h"
#include "forms/picturesform.h"
#include "images/picturefile.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "store/store.h"
#include "text/numbers.h"

#include <QFileInfo>
#include <QHash>

namespace {

constexpr char kDamagedTip[] = "Fotografía dañada o inaccesible";
constexpr char16_t kFileSize[] = u"#,##0";
constexpr qint64 kKilobyte = 1024;

// One decode serves the thumbnail and the large view, pixels.
constexpr QSize kLargeView(1600, 1200);

PictureBox* Thumbnail(int slot) {
    return frmPictures->imgPicPreview.at(static_cast<std::size_t>(slot));
}

bool IsDamaged(int slot) {
    return Thumbnail(slot)->toolTip() == kDamagedTip;
}

struct SlotContent {
    QPixmap picture;
    QString tip;
};

// What the slots show, by file name.
QHash<QString, SlotContent> SlotContents() {
    QHash<QString, SlotContent> contents;
    for (const PictureBox* box : frmPictures->imgPicPreview) {
        if (!Tag(box).isEmpty()) {
            contents[Tag(box)] = {box->pixmap(Qt::ReturnByValue), box->toolTip()};
        }
    }
    return contents;
}

void FillSlot(int slot, const QString& name, const SlotContent& content) {
    Thumbnail(slot)->setPixmap(content.picture);
    Thumbnail(slot)->setToolTip(content.tip);
    SetTag(Thumbnail(slot), name);
}

void EmptySlot(int slot) {
    Thumbnail(slot)->setPixmap(frmPictures->imgEmpty->pixmap(Qt::ReturnByValue));
    Thumbnail(slot)->setToolTip({});
    SetTag(Thumbnail(slot), {});
}

void BreakSlot(int slot, const QString& name, const QString& reason) {
    Thumbnail(slot)->setPixmap(frmPictures->imgError->pixmap(Qt::ReturnByValue));
    Thumbnail(slot)->setToolTip(kDamagedTip);
    SetTag(Thumbnail(slot), name);
    MsgBox(reason + "\nUtilice el botón Cambiar de la barra de herramientas para seleccionar un "
                    "fichero válido.",
           BoxIcon::Warning, AppName);
}

QString FileSizeText(const QString& name) {
    const qint64 bytes = QFileInfo(DBpath + name).size();
    const qint64 kilobytes = (bytes + kKilobyte - 1) / kKilobyte; // begun ones count
    return FormatNumber(double(kilobytes), kFileSize);
}

void EmptyLargeView(const QString& size, const QString& tip) {
    frmPictures->imgPicture->clear();
    frmPictures->imgPicture->setToolTip(tip);
    frmPictures->txtPicFileSize->setText(size);
}

} // namespace

void LoadThumbnails() {
    Recordset& pictures = adcData[kCursorPictures];
    const int current = pictures.AbsolutePosition();
    QStringList names;
    for (pictures.MoveFirst(); pictures.HasRow(); pictures.MoveNext()) {
        names.push_back(pictures.Text(u"PicturePath"));
    }
    pictures.SetAbsolutePosition(current);
    const auto slotCount = static_cast<int>(frmPictures->imgPicPreview.size());
    const QHash<QString, SlotContent> loaded = SlotContents();
    for (int slot = 0; slot < slotCount; ++slot) {
        const QString name = slot < names.size() ? names[slot] : QString();
        if (name.isEmpty()) {
            EmptySlot(slot);
        } else if (loaded.contains(name)) {
            FillSlot(slot, name, loaded[name]);
        } else {
            LoadThumbnail(slot, name);
            DoEvents();
        }
    }
}

void EmptyThumbnail(int slot) {
    EmptySlot(slot);
}

void LoadThumbnail(int slot, const QString& name) {
    try {
        const DecodedPicture picture = ReadPicture(DBpath + name, kLargeView / 2);
        Thumbnail(slot)->setPixmap(QPixmap::fromImage(picture.image));
        Thumbnail(slot)->setToolTip("Haga click aquí para ver ampliada de la Fotografía");
        SetTag(Thumbnail(slot), name);
    } catch (const PictureError& error) {
        BreakSlot(slot, name, error.Text());
    }
}

void SwapThumbnails(int first, int second) {
    PictureBox* a = Thumbnail(first);
    PictureBox* b = Thumbnail(second);
    const QPixmap picture = a->pixmap(Qt::ReturnByValue);
    const QString tip = a->toolTip();
    const QString tag = Tag(a);
    a->setPixmap(b->pixmap(Qt::ReturnByValue));
    a->setToolTip(b->toolTip());
    SetTag(a, Tag(b));
    b->setPixmap(picture);
    b->setToolTip(tip);
    SetTag(b, tag);
}

void ShowCurrentPicture(int slot) {
    if (slot < 0 || Tag(Thumbnail(slot)).isEmpty()) {
        EmptyLargeView("0", {});
    } else if (IsDamaged(slot)) {
        EmptyLargeView("?", kDamagedTip);
    } else {
        frmPictures->imgPicture->setPixmap(Thumbnail(slot)->pixmap(Qt::ReturnByValue));
        frmPictures->imgPicture->setToolTip({});
        frmPictures->txtPicFileSize->setText(FileSizeText(Tag(Thumbnail(slot))));
    }
}

void MarkSlot(int slot) {
    for (int other = 0; other < static_cast<int>(frmPictures->shpPicPreview.size()); ++other) {
        SetLookFlag(frmPictures->shpPicPreview[static_cast<std::size_t>(other)], "selected",
                    other == slot);
    }
}
