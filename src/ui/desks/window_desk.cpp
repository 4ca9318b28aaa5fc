#include "ui/desks/window_desk.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "ui/windows/window_places.h"

namespace kelvo::ui {
namespace {

constexpr QSize kFirstSize(1016, 720), kLeastSize(640, 400);
constexpr QSize kFirstCells(20, 18);  // that the zoom window shows then, at 4:1
// From the top downwards; the prompt is hidden when windows are arranged, and has its place all the same.
constexpr std::array kColumn{ChildWindowId::kFullView, ChildWindowId::kColors, ChildWindowId::kPens,
                             ChildWindowId::kCharData, ChildWindowId::kPrompt};
constexpr std::array kSideWindows{ChildWindowId::kColors, ChildWindowId::kPens,    ChildWindowId::kCharData,
                                  ChildWindowId::kPrompt, ChildWindowId::kHistory, ChildWindowId::kFrames};

WindowSize SizeOf(ChildWindowId id) {
  if (id == ChildWindowId::kZoom) return WindowSize::kFills;
  constexpr std::array kFree{ChildWindowId::kPrompt, ChildWindowId::kHistory, ChildWindowId::kFrames};
  return std::find(kFree.begin(), kFree.end(), id) != kFree.end() ? WindowSize::kFree : WindowSize::kFixed;
}

}  // namespace

WindowDesk::WindowDesk(QMainWindow& frame, QMdiArea& area, frmZoom& zoom, frmBMPView& full_view, StatusPanels& panels,
                       app::SettingsStore& settings)
    : frame_(frame),
      area_(area),
      zoom_(zoom),
      full_view_(full_view),
      panels_(panels),
      settings_(settings),
      large_zoom_(area, zoom),
      floating_(frame, area) {
  area_.setObjectName("mdiArea");
  frame_.setCentralWidget(&area_);
  area_.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &WindowDesk::BringAllIntoReach, Qt::QueuedConnection);
}

void WindowDesk::Add(ChildWindowId id, QWidget* form) {
  auto* child = new ChildWindow(form, SizeOf(id));
  area_.addSubWindow(child);
  child->setAttribute(Qt::WA_DeleteOnClose, false);
  connect(child, &ChildWindow::ClosedByUser, this, [this, id] {
    if (id == ChildWindowId::kFrames) ShareRoomWithFrames();
    emit Changed();
  });
  connect(child, &ChildWindow::FillAsked, this, &WindowDesk::ToggleLargeZoom);
  children_[static_cast<std::size_t>(id)] = child;
  if (id == ChildWindowId::kFrames) large_zoom_.KeepAbove(child);
}

// Places are kept as they are when nothing is scrolled.
QPoint WindowDesk::Scrolled() const {
  return {area_.horizontalScrollBar()->value(), area_.verticalScrollBar()->value()};
}

QSize WindowDesk::Chrome() const {
  panels_.FitInto(frame_.width());
  frame_.layout()->activate();
  return frame_.size() - area_.maximumViewportSize();
}

QSize WindowDesk::RoomOf(QSize frame) const {
  return frame - Chrome();
}

ZoomSizes WindowDesk::SizesOfZoom() const {
  const QSize none = zoom_.SizeFor(0, 0), all = zoom_.SizeFor(40, 25);
  return {Child(ChildWindowId::kZoom).Chrome(),
          none,
          {(all.width() - none.width()) / 40.0, (all.height() - none.height()) / 25.0}};
}

std::vector<QSize> WindowDesk::ColumnSizes() const {
  const int width = Child(ChildWindowId::kColors).sizeHint().width();  // that all share
  std::vector<QSize> sizes;
  for (const ChildWindowId id : kColumn) {
    const ChildWindow& child = Child(id);
    sizes.push_back(child.IsFixed() ? child.sizeHint() : QSize(width, child.minimumSizeHint().height()));
  }
  return sizes;
}

// The widest of the column's windows but a magnified full view says how wide all are.
void WindowDesk::ShareWidth() {
  int width = 0;
  for (const ChildWindowId id : kColumn) {
    QWidget& form = *Child(id).widget();
    form.setMinimumWidth(0);
    const bool is_magnified = &form == &full_view_ && full_view_.Scale() > 1;
    const int needed = Child(id).IsFixed() ? form.sizeHint().width() : form.minimumSizeHint().width();
    if (!is_magnified) width = std::max(width, needed + Child(id).Chrome().width());
  }
  for (const ChildWindowId id : kColumn) Child(id).widget()->setMinimumWidth(width - Child(id).Chrome().width());
}

int WindowDesk::ScrollBarWidth() const {
  return area_.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &area_);
}

// Everything is to be seen at first, where the display has room for it.
QSize WindowDesk::FirstSize() const {
  const ZoomSizes zoom = SizesOfZoom();
  const auto column = ColumnSizes();
  const int beside =
      ui::Arrange({0, 0}, zoom, column, 0).Needed().width() - zoom.For({kLeastCells, kLeastCells}).width();
  const QSize least(zoom.For(kFirstCells).width() + beside, zoom.For(kFirstCells).height() + 2 * kWindowGap);
  QSize needed = ui::Arrange(least, zoom, column, 0).Needed() + Chrome();
  const QSize free = FreeArea(frame_.geometry()).size() - kAround;
  if (needed.height() > free.height()) needed.rwidth() += ScrollBarWidth();
  return kFirstSize.expandedTo(needed).boundedTo(free);
}

void WindowDesk::Begin() {
  const QSize free = FreeArea(frame_.geometry()).size() - kAround;
  frame_.setMinimumSize(kLeastSize.boundedTo(free));
  frame_.resize(kFirstSize.boundedTo(free));
  full_view_.SetScale(app::ReadNumber(settings_, kFullViewScale, 1, kLargestFullView),
                      app::IsOn(settings_, kFullViewPal));
  ShareWidth();
  frame_.resize(FirstSize());
  ArrangeIn(RoomOf(frame_.size()), 0);
  RestoreFrame(settings_, frame_);
  const bool fills = frame_.windowState().testFlag(Qt::WindowMaximized);
  GiveFocusToPicture();
  RestoreChildren(RoomOf(fills ? FreeArea(frame_.geometry()).size() - kAround : frame_.size()));
}

void WindowDesk::RestoreChildren(QSize room) {
  for (ChildWindow* child : children_) {
    const auto kept = ReadPlace(settings_, child->objectName());
    if (!kept) continue;
    child->setVisible(kept->is_shown);
    if (!CanBeTaken({kept->at, child->size()}, QRect(QPoint(), room))) continue;
    if (!child->IsFixed() && kept->size.isValid()) {
      child->resize(kept->size.boundedTo(room).expandedTo(child->minimumSizeHint()));
    }
    child->move(IntoReach({kept->at, child->size()}, QRect(QPoint(), room)).topLeft());
  }
}

void WindowDesk::Keep() {
  KeepFrame(settings_, frame_);
  for (const ChildWindow* child : children_) {
    KeepPlace(settings_, child->objectName(),
              {child->pos() + Scrolled(), !child->isHidden(), child->IsFixed() ? QSize() : child->size()});
  }
}

void WindowDesk::ArrangeIn(QSize room, int below) {
  const ZoomSizes sizes = SizesOfZoom();
  const auto column = ColumnSizes();
  Arrangement places = ui::Arrange(room, sizes, column, below);
  if (places.Needed().height() > room.height()) {  // there will be a scroll bar
    places = ui::Arrange(room - QSize(ScrollBarWidth(), 0), sizes, column, below);
  }
  ChildWindow& zoom = Child(ChildWindowId::kZoom);
  zoom.setGeometry(places.zoom);
  zoom.show();
  large_zoom_.Forget();
  for (std::size_t i = 0; i < kColumn.size(); ++i) {
    ChildWindow& child = Child(kColumn[i]);
    child.setGeometry(places.column[i]);
    child.setVisible(kColumn[i] != ChildWindowId::kPrompt);
  }
  HideHistoryAt(places.column.back(), places.column[places.column.size() - 2].top());
  HideFramesOver(places.zoom);
}

// It shares the prompt's place, and takes that of Char data too where the prompt's is low.
void WindowDesk::HideHistoryAt(QRect place, int top_of_char_data) {
  ChildWindow& history = Child(ChildWindowId::kHistory);
  if (place.height() < history.sizeHint().height()) place.setTop(top_of_char_data);
  history.setGeometry(place);
  history.hide();
}

// A row takes the lower edge of the zoom window.
void WindowDesk::HideFramesOver(QRect zoom) {
  ChildWindow& frames = Child(ChildWindowId::kFrames);
  zoom.setTop(zoom.bottom() + 1 - frames.sizeHint().height());
  frames.setGeometry(zoom);
  frames.hide();
}

void WindowDesk::Arrange(QWidget* floating) {
  area_.horizontalScrollBar()->setValue(0);
  area_.verticalScrollBar()->setValue(0);
  ShareWidth();
  const QSize room = area_.maximumViewportSize();
  ArrangeIn(room, 0);
  if (floating != nullptr) {
    const QSize size = FloatingWindows::SizeOf(*floating);
    if (floating_.FreePlaceOver(size).isNull()) ArrangeIn(room, size.height() + kWindowGap);
    floating_.Place(*floating);
  }
  emit Changed();
  GiveFocusToPicture();
}

void WindowDesk::Toggle(ChildWindowId id) {
  Child(id).setVisible(!IsShown(id));
  if (id == ChildWindowId::kFrames) ShareRoomWithFrames();
  if (IsShown(id)) area_.setActiveSubWindow(&Child(id));
}

// Shown over the lower edge of the zoom window, the strip gets that room; hidden right below it, it gives it back.
void WindowDesk::ShareRoomWithFrames() {
  ChildWindow& zoom = Child(ChildWindowId::kZoom);
  const QRect strip = Child(ChildWindowId::kFrames).geometry();
  QRect place = zoom.geometry(), below = strip.adjusted(0, -kWindowGap, 0, 0);
  if (IsShown(ChildWindowId::kFrames)) {
    if (place.intersects(below)) place.setBottom(below.top() - 1);
  } else if (place.bottom() == below.top() - 1 && place.left() == strip.left()) {
    place.setBottom(strip.bottom());
  }
  if (place.height() >= zoom.minimumSizeHint().height()) zoom.setGeometry(place);
}

void WindowDesk::ShowBehind(ChildWindowId id) {
  if (IsShown(id)) return;
  QMdiSubWindow* active = area_.activeSubWindow();
  Toggle(id);
  if (active != nullptr) area_.setActiveSubWindow(active);
}

void WindowDesk::GiveFocusToPicture() {
  area_.setActiveSubWindow(&Child(ChildWindowId::kZoom));
  zoom_.setFocus();
}

bool WindowDesk::IsInSideWindow(const QWidget* widget) const {
  return std::any_of(kSideWindows.begin(), kSideWindows.end(), [&](ChildWindowId id) {
    return &Child(id) == widget || Child(id).isAncestorOf(widget);  // one without a field has the focus itself
  });
}

void WindowDesk::ToggleLargeZoom() {
  large_zoom_.Toggle();
  emit Changed();
}

void WindowDesk::ShowFullView(int scale, bool is_pal) {
  full_view_.SetScale(scale, is_pal);
  settings_.Write(kFullViewScale, std::to_string(scale));
  settings_.Write(kFullViewPal, is_pal ? "1" : "0");
  ShareWidth();
  Child(ChildWindowId::kFullView).adjustSize();
  emit Changed();
}

void WindowDesk::SetFullViewScale(int scale) {
  ShowFullView(scale, full_view_.IsPal());
}

void WindowDesk::TogglePal() {
  ShowFullView(full_view_.Scale(), !full_view_.IsPal());
}

void WindowDesk::BringAllIntoReach() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !window->isFullScreen() && !window->isMaximized()) BringIntoReach(*window);
  }
}

}  // namespace kelvo::ui
