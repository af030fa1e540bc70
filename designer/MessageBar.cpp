#include "designer/MessageBar.h"

#include <QtWidgets>

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), icon_(new QLabel), text_(new QLabel), buttons_(new QHBoxLayout) {
  setObjectName(QStringLiteral("messageBar"));
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text_->setObjectName(QStringLiteral("messageText"));
  text_->setAccessibleName(tr("Message"));
  auto* close = new QToolButton;
  close->setObjectName(QStringLiteral("messageClose"));
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setToolTip(tr("Hide this message"));
  close->setAccessibleName(close->toolTip());
  connect(close, &QToolButton::clicked, this, [this] {
    hide();
    emit Dismissed();
  });
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 4, 8, 4);
  row->setSpacing(8);
  row->addWidget(icon_);
  row->addWidget(text_, 1);
  row->addLayout(buttons_);
  row->addWidget(close);
  TakeIcon();
  hide();
}

void MessageBar::Tell(const QString& text, const std::vector<Choice>& choices) {
  while (QLayoutItem* item = buttons_->takeAt(0)) {
    item->widget()->hide();
    item->widget()->deleteLater();  // it may be the one that was clicked
    delete item;
  }
  text_->setText(text);
  setAccessibleName(text);
  for (const Choice& choice : choices) {
    auto* button = new QPushButton(choice.text);
    button->setObjectName(QLatin1StringView(choice.name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, run = choice.run] {
      hide();
      run();
    });
    buttons_->addWidget(button);
  }
  show();
}

QString MessageBar::Text() const { return isHidden() ? QString() : text_->text(); }

void MessageBar::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange) TakeIcon();
}

// A touch of the accent colour over the window's own, in both themes.
void MessageBar::paintEvent(QPaintEvent* event) {
  const QColor window = palette().color(QPalette::Window), accent = palette().color(QPalette::Highlight);
  const auto mix = [](int a, int b) { return (a * 4 + b) / 5; };
  QPainter(this).fillRect(rect(), QColor(mix(window.red(), accent.red()), mix(window.green(), accent.green()),
                                         mix(window.blue(), accent.blue())));
  QFrame::paintEvent(event);
}

void MessageBar::TakeIcon() {
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon_->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size));
}
