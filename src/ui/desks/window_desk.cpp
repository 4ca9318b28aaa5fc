#include "ui/desks/window_desk.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "ui/windows/window_places.h"

namespace kelvo::ui {
namespace {

constexpr QSize kFirstSize(1016, 720), kLeastSize(640, 400);
constexpr QSize kFirstCells(20, 18);  // that the zoom window shows then, at 4:1
// From the top downwards; the prompt is hidden when windows are arranged, and has its place all the same.
constexpr std::array kColumn{ChildWindowId::kFullView, ChildWindowId::kColors, ChildWindowId::kPens,
                             ChildWindowId::kCharData, ChildWindowId::kPrompt};
constexpr std::array kSideWindows{ChildWindowId::kColors, ChildWindowId::kPens, ChildWindowId::kCharData,
                                  ChildWindowId::kPrompt};

WindowSize SizeOf(ChildWindowId id) {
  if (id == ChildWindowId::kZoom) return WindowSize::kFills;
  return id == ChildWindowId::kPrompt ? WindowSize::kFree : WindowSize::kFixed;
}

// What a window manager adds to a window's height and width.
constexpr QSize kAround(8, 36);

}  // namespace

WindowDesk::WindowDesk(QMainWindow& frame, QMdiArea& area, frmZoom& zoom, frmBMPView& full_view, StatusPanels& panels,
                       app::SettingsStore& settings)
    : frame_(frame), area_(area), zoom_(zoom), full_view_(full_view), panels_(panels), settings_(settings) {
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
  connect(child, &ChildWindow::ClosedByUser, this, &WindowDesk::Changed);
  connect(child, &ChildWindow::FillAsked, this, &WindowDesk::ToggleLargeZoom);
  children_[static_cast<std::size_t>(id)] = child;
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
                      app::ReadNumber(settings_, kFullViewPal, 0, 1) == 1);
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
  zoom_before_ = {};
  for (std::size_t i = 0; i < kColumn.size(); ++i) {
    ChildWindow& child = Child(kColumn[i]);
    child.setGeometry(places.column[i]);
    child.setVisible(kColumn[i] != ChildWindowId::kPrompt);
  }
}

void WindowDesk::Arrange(QWidget* floating) {
  area_.horizontalScrollBar()->setValue(0);
  area_.verticalScrollBar()->setValue(0);
  ShareWidth();
  const QSize room = area_.maximumViewportSize();
  ArrangeIn(room, 0);
  if (floating != nullptr) {
    const QSize size = floating->sizeHint() + kAround;
    if (FreePlaceOver(size).isNull()) ArrangeIn(room, size.height() + kWindowGap);
    PlaceFloating(*floating);
  }
  emit Changed();
  GiveFocusToPicture();
}

// Over the main window's area, beside the main window, or below it.
QRect WindowDesk::FreePlaceOver(QSize size) const {
  const auto global = [this](const QRect& place) { return place.translated(area_.viewport()->mapToGlobal(QPoint())); };
  std::vector<QRect> taken;
  for (const ChildWindow* child : children_) taken.push_back(global(child->geometry()));
  const QRect free = FreeArea(frame_.geometry());
  const QRect area = global(area_.viewport()->rect()) & free;
  if (const QRect inside = FreePlace(area, size, taken); !inside.isNull()) return inside;
  const QRect frame = frame_.frameGeometry();
  for (const QPoint corner :
       {QPoint(frame.right() + 1 + kWindowGap, frame.top()), QPoint(frame.left(), frame.bottom() + 1 + kWindowGap),
        QPoint(frame.left() - size.width() - kWindowGap, frame.top())}) {
    if (free.contains(QRect(corner, size))) return {corner, size};
  }
  return {};
}

void WindowDesk::PlaceFloating(QWidget& window) {
  const QSize size = window.sizeHint();
  const QSize with_frame = size + kAround;
  QRect place = FreePlaceOver(with_frame);
  if (place.isNull()) {
    const QRect space = frame_.geometry() & FreeArea(frame_.geometry());
    place = QRect(space.bottomRight() - QPoint(with_frame.width(), with_frame.height() + kAround.height()), with_frame);
  }
  const QPoint inside(kAround.width() / 2, kAround.height() - kAround.width() / 2);
  window.setGeometry(QRect(place.topLeft() + inside, size));
  BringIntoReach(window);
}

void WindowDesk::PlaceFloating(QWidget& window, QPoint place) {
  const QRect content(place, window.sizeHint());
  if (!CanBeTakenOnAScreen(content.translated(0, -kAround.height() / 2))) return PlaceFloating(window);
  window.setGeometry(content);
}

void WindowDesk::Toggle(ChildWindowId id) {
  Child(id).setVisible(!IsShown(id));
  if (IsShown(id)) area_.setActiveSubWindow(&Child(id));
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

std::vector<ChildWindow*> WindowDesk::BesideZoom() const {
  std::vector<ChildWindow*> beside;
  const int middle = Child(ChildWindowId::kZoom).geometry().center().x();
  for (const ChildWindowId id : kColumn) {
    if (IsShown(id) && Child(id).x() > middle) beside.push_back(&Child(id));
  }
  return beside;
}

QSize WindowDesk::LargestZoom() const {
  return Child(ChildWindowId::kZoom).Chrome() + zoom_.SizeFor(40, 25) * (zoom_.Area().Is8X() ? 2 : 1);
}

QRect WindowDesk::RoomForZoom() const {
  const QRect area = area_.viewport()->rect().marginsRemoved({kWindowGap, kWindowGap, kWindowGap, kWindowGap});
  int right = area.right();
  for (const ChildWindow* child : BesideZoom()) right = std::min(right, child->x() - kWindowGap - 1);
  return {area.topLeft(), QSize(right + 1 - area.left(), area.height()).boundedTo(LargestZoom())};
}

// How far the windows beside the zoom window can go to the right, as far as that helps it.
int WindowDesk::RoomBesideColumn() const {
  QRect column;
  for (const ChildWindow* child : BesideZoom()) column |= child->geometry();
  if (column.isNull()) return 0;
  const int free = area_.viewport()->width() - kWindowGap - column.right() - 1;
  return std::max(0, std::min(free, LargestZoom().width() + 2 * kWindowGap - column.left()));
}

void WindowDesk::MoveColumn(int distance) {
  for (ChildWindow* child : BesideZoom()) child->move(child->pos() + QPoint(distance, 0));
}

bool WindowDesk::IsZoomLarge() const {
  return !zoom_before_.isNull() && Child(ChildWindowId::kZoom).geometry() == RoomForZoom();
}

void WindowDesk::ToggleLargeZoom() {
  ChildWindow& zoom = Child(ChildWindowId::kZoom);
  if (IsZoomLarge()) {
    zoom.setGeometry(std::exchange(zoom_before_, QRect()));
    MoveColumn(-column_moved_);
  } else {
    column_moved_ = RoomBesideColumn();
    MoveColumn(column_moved_);
    zoom_before_ = zoom.geometry();
    zoom.setGeometry(RoomForZoom());
  }
  zoom.show();
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
