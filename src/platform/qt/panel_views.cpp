#include <QEvent>
#include <QFrame>
#include <QMouseEvent>
#include <QTabBar>

#include "platform/qt/views.h"

namespace platform::qt {

// ---- PagePanel, and the pages of every panel -----------------------------------------------

QWidget* PanelView::createWidget(QWidget* parent) {
  container_ = new QWidget(parent);
  return container_;
}

void PanelView::ensurePages(int count) const {
  while (static_cast<int>(pages_.size()) < count) {
    auto* page = new QWidget(container_);
    page->setObjectName(control().Name() + QStringLiteral(".page") +
                        QString::number(pages_.size()));
    page->setGeometry(0, pagesTop(), control().Width(),
                      std::max(0, control().Height() - pagesTop()));
    page->setVisible(static_cast<int>(pages_.size()) == panel().Value());
    pages_.emplace_back(page);
  }
}

Host PanelView::pageHost(int page) const {
  ensurePages(std::max(page + 1, panel().PanelCount()));
  return {pages_[static_cast<size_t>(std::max(0, page))],
          QPoint(control().Left(), control().Top() + pagesTop())};
}

void PanelView::layoutParts() {
  for (const QPointer<QWidget>& page : pages_) {
    if (page)
      page->setGeometry(0, pagesTop(), control().Width(),
                        std::max(0, control().Height() - pagesTop()));
  }
}

void PanelView::refresh(const QString& property) {
  if (property == u"Value" || property == u"PanelCount") {
    ensurePages(panel().PanelCount());
    for (size_t page = 0; page < pages_.size(); ++page) {
      if (pages_[page]) pages_[page]->setVisible(static_cast<int>(page) == panel().Value());
    }
  } else {
    ControlView::refresh(property);
    if (property == u"Left" || property == u"Top" || property == u"Width" ||
        property == u"Height") {
      layoutParts();
    }
  }
}

// ---- TabPanel ------------------------------------------------------------------------------

QWidget* TabPanelView::createWidget(QWidget* parent) {
  QWidget* panelWidget = PanelView::createWidget(parent);
  pane_ = new QFrame(panelWidget);
  pane_->setFrameShape(QFrame::StyledPanel);
  pane_->setFrameShadow(QFrame::Raised);
  bar_ = new QTabBar(panelWidget);
  bar_->setExpanding(true);
  bar_->setUsesScrollButtons(false);
  bar_->setDrawBase(false);
  bar_->setElideMode(Qt::ElideNone);
  bar_->setFocusPolicy(Qt::NoFocus);
  bar_->installEventFilter(this);
  showTabs();
  return panelWidget;
}

int TabPanelView::pagesTop() const { return bar_ ? bar_->sizeHint().height() : 0; }

void TabPanelView::layoutParts() {
  const int top = pagesTop();
  bar_->setGeometry(0, 0, control().Width(), top);
  // The pane's frame runs just under the tabs, as a tab widget draws it.
  pane_->setGeometry(0, top - 1, control().Width(), std::max(0, control().Height() - top + 1));
  pane_->lower();
  PanelView::layoutParts();
}

void TabPanelView::showTabs() {
  Applying applying(*this);
  const QStringList captions = tabs().Tabs();
  while (bar_->count() > captions.size()) bar_->removeTab(bar_->count() - 1);
  for (int tab = 0; tab < captions.size(); ++tab) {
    if (tab < bar_->count()) {
      bar_->setTabText(tab, captionText(captions[tab]));
    } else {
      bar_->addTab(captionText(captions[tab]));
    }
  }
  bar_->setCurrentIndex(tabs().Value());
}

void TabPanelView::refresh(const QString& property) {
  if (property == u"Tabs" || property == u"SmallTabs") {
    if (property == u"SmallTabs") {
      QFont font = bar_->font();
      font.setPixelSize(tabs().SmallTabs() ? 11 : QFontInfo(container()->font()).pixelSize());
      bar_->setFont(font);
    }
    showTabs();
    layoutParts();
    PanelView::refresh(QStringLiteral("PanelCount"));
  } else if (property == u"Value") {
    {
      Applying applying(*this);
      bar_->setCurrentIndex(tabs().Value());
    }
    PanelView::refresh(property);
  } else {
    PanelView::refresh(property);
  }
}

bool TabPanelView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == bar_) {
    switch (event->type()) {
      case QEvent::MouseButtonPress: {
        // A press on a tab is the user's choice of it: MouseDown, the change of tab when
        // MouseDown lets it, MouseUp. The bar shows whatever tab the model then holds.
        auto* press = static_cast<QMouseEvent*>(event);
        const int tab = bar_->tabAt(press->position().toPoint());
        if (press->button() == Qt::LeftButton && tab >= 0) {
          run([this, tab] { tabs().userChoose(tab); });
          Applying applying(*this);
          bar_->setCurrentIndex(tabs().Value());
        }
        return true;
      }
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
        return true;
      default:
        break;
    }
  }
  return PanelView::eventFilter(watched, event);
}

}  // namespace platform::qt
