#include "dclstd/PictureEditor.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include "dclstd/CheckedGround.h"
#include "dclstd/EditValue.h"
#include "vcl/ColorSwatch.h"
#include "vcl/PictureFile.h"
#include "vcl/Prompts.h"
#include "vcl/UserFile.h"

namespace {
// What a file of the picture is called.
QString EndingOf(const TPicture& picture) {
  const QByteArray bytes = picture.FileBytes();
  static constexpr std::pair<const char*, const char*> starts[] = {
      {"BM", "bmp"}, {"\x89PNG", "png"}, {"\xFF\xD8\xFF", "jpg"}, {"GIF8", "gif"}};
  for (const auto& [start, ending] : starts)
    if (bytes.startsWith(start)) return QString::fromLatin1(ending);
  return bytes.startsWith(QByteArray("\0\0\1\0", 4)) ? QStringLiteral("ico") : QStringLiteral("bin");
}

QString FileIn(const QMimeData& data) {
  for (const QUrl& url : data.urls())
    if (url.isLocalFile()) return url.toLocalFile();
  return {};
}
}  // namespace

void PicturePreview::SetImage(const QImage& image) {
  image_ = image;
  update();
}

void PicturePreview::paintEvent(QPaintEvent*) {
  QPainter p(this);
  QSize size = image_.size();
  if (size.width() > width() || size.height() > height()) size.scale(this->size(), Qt::KeepAspectRatio);
  const QRect place(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
  if (image_.isNull()) {
    p.setPen(palette().color(QPalette::PlaceholderText));
    return p.drawText(rect(), Qt::AlignCenter, tr("(None)"));
  }
  PaintCheckedGround(p, place, 8);
  p.setRenderHint(QPainter::SmoothPixmapTransform, size != image_.size());
  p.drawImage(place, image_);
}

PictureEditorDialog::PictureEditorDialog(QWidget* owner, const TPicture& picture)
    : RowDialog(tr("Picture Editor"), owner),
      picture_(As<TGlyph>(&picture) ? std::make_unique<TGlyph>() : std::make_unique<TPicture>()) {
  picture_->Assign(&picture);
  setAcceptDrops(true);
  view = new PicturePreview(this);
  view->setObjectName(QStringLiteral("view"));
  const auto label = [this](QLabel*& made, const char* name) {
    made = new QLabel(this);
    made->setObjectName(QLatin1StringView(name));
    made->setTextFormat(Qt::PlainText);
  };
  label(facts, "facts");
  label(transparent, "transparent");
  label(swatch, "swatch");
  facts->setWordWrap(true);
  Button(load, "load", "&Load...", &PictureEditorDialog::loadClick, "A picture file in place of this one");
  Button(save, "save", "&Save As...", &PictureEditorDialog::saveClick, "The picture as a file of its format");
  Button(clear, "clear", "Cl&ear", &PictureEditorDialog::clearClick, "No picture");
  Button(copy, "copy", "&Copy", &PictureEditorDialog::copyClick, "The picture to the clipboard (Ctrl+C)");
  Button(paste, "paste", "&Paste", &PictureEditorDialog::pasteClick,
         "The picture of the clipboard in place of this one (Ctrl+V)");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* frame = new QFrame(this);
  frame->setFrameShape(QFrame::StyledPanel);
  auto* inside = new QVBoxLayout(frame);
  inside->addWidget(view);
  auto* below = new QHBoxLayout;
  below->addWidget(facts, 1);
  below->addWidget(transparent);
  below->addWidget(swatch);
  auto* left = new QVBoxLayout;
  left->addWidget(frame, 1);
  left->addLayout(below);
  OwnColors({view});
  FinishBeside(left, {load, save, clear, copy, paste}, {ok, cancel}, {440, 300});
  SetLabels();
}

void PictureEditorDialog::LoadControls() {
  RowDialog::LoadControls();
  const QImage& image = picture_->Image();
  const auto* glyph = As<TGlyph>(picture_.get());
  view->SetImage(glyph ? glyph->Transparent() : image);
  if (picture_->Empty())
    facts->setText(tr("No picture"));
  else if (image.isNull())
    facts->setText(picture_->Problem());
  else
    facts->setText(tr("%1 x %2, %3, %4 bytes")
                       .arg(image.width())
                       .arg(image.height())
                       .arg(EndingOf(*picture_).toUpper())
                       .arg(picture_->FileBytes().size()));
  // The lower left pixel of a glyph says what is transparent.
  const bool colored = glyph && !image.isNull() && !image.hasAlphaChannel();
  transparent->setVisible(colored);
  swatch->setVisible(colored);
  if (colored) {
    const QColor ground = image.pixelColor(0, image.height() - 1);
    const TColor color = RGBColor(ground.red(), ground.green(), ground.blue());
    transparent->setText(tr("Transparent: %1").arg(ColorToString(color)));
    swatch->setPixmap(ColorSwatch(color).pixmap(28, 14));
  }
  for (QPushButton* button : {save, clear}) button->setEnabled(!picture_->Empty());
  copy->setEnabled(!image.isNull());
}

void PictureEditorDialog::LoadFile(const QString& file) {
  const TBitmap decoded = LoadPicture(file);  // whatever it is, it is checked there
  try {
    picture_->SetFileBytes(ReadUserFile(file));
  } catch (const EInvalidPicture&) {
    // Of a format that forms do not keep.
    picture_->SetFileBytes(PictureToBytes(decoded.Image(), "png"));
  }
  SetLabels();
}

void PictureEditorDialog::loadClick() {
  static QString folder;  // where the last one was found
  const QString file = Prompts().OpenFileName(this, tr("Load picture"), folder, PictureFilter());
  if (file.isEmpty()) return;
  folder = QFileInfo(file).path();
  LoadFile(file);
}

void PictureEditorDialog::saveClick() {
  const QString ending = EndingOf(*picture_);
  const QString file = Prompts().SaveFileName(this, tr("Save picture"), QStringLiteral("picture.") + ending,
                                              QStringLiteral("*.%1;;*").arg(ending));
  if (!file.isEmpty()) WriteUserFile(file, picture_->FileBytes());
}

void PictureEditorDialog::clearClick() {
  picture_->Clear();
  SetLabels();
}

void PictureEditorDialog::copyClick() {
  if (const QImage& image = picture_->Image(); !image.isNull()) QGuiApplication::clipboard()->setImage(image);
}

void PictureEditorDialog::pasteClick() {
  const QMimeData* clip = QGuiApplication::clipboard()->mimeData();
  if (!clip) return;
  if (const QString file = FileIn(*clip); !file.isEmpty()) return LoadFile(file);
  const QImage image = qvariant_cast<QImage>(clip->imageData());
  if (image.isNull()) throw EInvalidPicture(tr("There is no picture on the clipboard."));
  RequirePictureSize(tr("The picture on the clipboard"), image.width(), image.height());
  picture_->SetFileBytes(PictureToBytes(image, "png"));
  SetLabels();
}

void PictureEditorDialog::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Guarded([this] { copyClick(); });
  if (event->matches(QKeySequence::Paste)) return Guarded([this] { pasteClick(); });
  RowDialog::keyPressEvent(event);
}

void PictureEditorDialog::dragEnterEvent(QDragEnterEvent* event) {
  if (!FileIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}
void PictureEditorDialog::dropEvent(QDropEvent* event) {
  const QString file = FileIn(*event->mimeData());
  if (file.isEmpty()) return;
  event->acceptProposedAction();
  Guarded([&] { LoadFile(file); });
}

bool EditPicture(TPicture& picture) {
  PictureEditorDialog dialog(ApplicationOwner(), picture);
  if (dialog.ShowModal() != mrOk || dialog.Picture().Data() == picture.Data()) return false;
  picture.Assign(&dialog.Picture());
  return true;
}
