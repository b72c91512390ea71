#include "ferrowind/adapters/qt/forms/qt_form.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>
#include <cmath>
#include <utility>

#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/forms/control_maker.h"
#include "ferrowind/adapters/qt/forms/design_traits.h"
#include "ferrowind/adapters/qt/forms/left_out_controls.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/twips.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::Failure;
using platform::FormStart;
using platform::Interruption;
namespace failure_number = platform::failure_number;

namespace {

void RequireFinite(float length) {
  if (!std::isfinite(length)) throw platform::InvalidArgument();
}

void RequireSize(float size) {
  RequireFinite(size);
  if (size < 0) throw platform::InvalidArgument();
}

}  // namespace

// Making and dropping
// ------------------------------------------------------------------------------------------------

std::shared_ptr<QtForm> QtForm::Create(const platform::FormDesign& design, const FormLayouts& layouts,
                                       QWidget* place) {
  std::shared_ptr<QtForm> form(new QtForm(design), &QtForm::Retire);
  form->MakeControls(design, layouts, place);
  return form;
}

QtForm::QtForm(const platform::FormDesign& design)
    : name_(design.name), start_(design.start), window_(new FormWindow) {
  window_->SetCallbacks({[this] { Unload(); },
                         [this] {
                           if (is_loaded_ && !is_unloaded_ && !is_muted_) {
                             const EventOf event(*window_);
                             RunGuarded(name_, [this] { resize_.Emit(); });
                           }
                         },
                         [this] {
                           if (modal_loop_) modal_loop_->quit();
                         }});
}

void QtForm::Retire(QtForm* form) {
  form->Mute();
  ModalShow::InterruptThoseOf(*form->window_);
  for (const auto& made : form->controls_) {
    if (auto* element = dynamic_cast<WidgetElement*>(made.get())) element->Mute();
  }
  form->window_->RetireWith(
      std::shared_ptr<void>(form, [](void* retired) { delete static_cast<QtForm*>(retired); }));
}

void QtForm::Mute() {
  is_muted_ = true;
  window_->SetCallbacks({});
}

void QtForm::MakeControls(const platform::FormDesign& design, const FormLayouts& layouts, QWidget* place) {
  if (!layouts.Build(design.name, *window_)) {
    throw Failure(failure_number::kElementNotFound, "There is no layout of a form " + design.name);
  }
  window_->setObjectName(ToQt(design.name));
  LeaveOutUndesigned(*window_, design);
  for (const platform::ControlDesign& control : design.controls)
    controls_.push_back(MakeDesignedControl(control));
  SetCaption(design.caption);
  if (place != nullptr) {
    window_->PutInto(*place);
  } else {
    window_->SetBorder(design.border);
    window_->SetClosesByEscape(design.closes_by_escape);
  }
  ApplyDesign(*window_, design, controls_);
  window_->SetDesignedSize({PixelsX(design.client_width), PixelsY(design.client_height)});
}

std::unique_ptr<platform::Control> QtForm::MakeDesignedControl(const platform::ControlDesign& design) {
  auto* widget = window_->findChild<QWidget*>(ToQt(design.name));
  auto made = widget == nullptr ? nullptr : MakeControl(design.kind, *widget);
  if (made == nullptr) {
    const std::string lack = widget == nullptr ? "" : " of the kind asked for";
    throw Failure(failure_number::kElementNotFound,
                  "The layout of the form " + name_ + " has no control " + design.name + lack);
  }
  return made;
}

platform::Control& QtForm::ControlNamed(const std::string& name) {
  for (const auto& made : controls_) {
    if (made->Name() == name) return *made;
  }
  throw platform::NoSuchControl(*this, name);
}

// Caption and geometry
// ------------------------------------------------------------------------------------------------

std::string QtForm::Caption() const { return FromQt(window_->windowTitle()); }

void QtForm::SetCaption(const std::string& caption) { window_->setWindowTitle(ToQt(caption)); }

float QtForm::Left() const { return TwipsX(window_->x()); }

void QtForm::SetLeft(float left) {
  RequireFinite(left);
  window_->SetOuterPosition({PixelsX(left), window_->y()});
}

float QtForm::Top() const { return TwipsY(window_->y()); }

void QtForm::SetTop(float top) {
  RequireFinite(top);
  window_->SetOuterPosition({window_->x(), PixelsY(top)});
}

float QtForm::Width() const { return TwipsX(window_->OuterSize().width()); }

void QtForm::SetWidth(float width) {
  RequireSize(width);
  window_->SetOuterSize({PixelsX(width), window_->OuterSize().height()});
}

float QtForm::Height() const { return TwipsY(window_->OuterSize().height()); }

void QtForm::SetHeight(float height) {
  RequireSize(height);
  window_->SetOuterSize({window_->OuterSize().width(), PixelsY(height)});
}

float QtForm::InnerHeight() const { return TwipsY(window_->height()); }

// Showing and closing
// ------------------------------------------------------------------------------------------------

void QtForm::Load() {
  if (is_loaded_ || is_unloaded_) return;
  const auto keep = shared_from_this();
  is_loaded_ = true;
  const EventOf event(*window_);
  RunGuarded(name_, [this] { load_.Emit(); });
}

void QtForm::Show() {
  const auto keep = shared_from_this();
  Load();
  if (is_unloaded_ || window_->isVisible()) return;
  Place(nullptr);
  Appear(Qt::NonModal);
}

void QtForm::ShowModal() {
  if (IsPart()) throw Failure(failure_number::kInvalidArgument, name_ + " is a part of another window");
  const auto keep = shared_from_this();
  Load();
  if (is_unloaded_ || modal_loop_) return;
  const ModalShow show(*window_);
  const QPointer<QWidget> owner = show.Owner();
  // The modality of a window on show cannot change.
  window_->hide();
  Place(owner);
  window_->winId();
  window_->windowHandle()->setTransientParent(owner ? owner->windowHandle() : nullptr);
  QEventLoop loop;
  modal_loop_ = &loop;
  Appear(Qt::ApplicationModal);
  // It may be hidden already by what its appearance raised.
  if (window_->isVisible()) loop.exec(QEventLoop::DialogExec);
  modal_loop_ = nullptr;
  const bool is_left_open = window_->isVisible();
  window_->hide();
  if (owner && owner->isVisible()) owner->activateWindow();
  // Whoever waits for the form would take a return for an answer that the operator did not give.
  if (show.IsInterrupted())
    throw Interruption("The window that the form " + name_ + " belongs to has closed");
  if (is_left_open) throw Interruption("The application is ending; the form " + name_ + " was left open");
}

void QtForm::Raise() {
  if (!window_->isVisible()) return;
  QWidget& around = *window_->window();
  around.setWindowState(around.windowState() & ~Qt::WindowMinimized);
  around.raise();
  around.activateWindow();
}

void QtForm::Hide() { window_->hide(); }

bool QtForm::IsShown() const { return window_->isVisible(); }

bool QtForm::Unload() {
  if (is_unloaded_) return true;
  if (is_closing_) return false;
  const auto keep = shared_from_this();
  if (is_loaded_) {
    bool is_refused = false;
    is_closing_ = true;
    const EventOf event(*window_);
    RunGuarded(name_, [&] { close_query_.Emit(is_refused); });
    is_closing_ = false;
    if (is_refused) return false;
  }
  is_unloaded_ = true;
  ModalShow::InterruptThoseOf(*window_);
  Hide();
  return true;
}

bool QtForm::AwaitsAnswer() const {
  return IsShown() && window_->Border() == platform::FormBorder::kFixedDialog;
}

void QtForm::Place(const QWidget* owner) {
  if (start_ == FormStart::kAsPlaced || window_->IsPlaced() || IsPart()) return;
  const QScreen* screen = owner == nullptr ? QGuiApplication::primaryScreen() : owner->screen();
  const QRect room = screen->availableGeometry();
  const bool is_on_owner = start_ == FormStart::kCenterOwner && owner != nullptr;
  QRect place(QPoint(0, 0), window_->size());
  place.moveCenter(is_on_owner ? owner->frameGeometry().center() : room.center());
  // A dialog of an owner at the edge of the screen stays in reach.
  place.moveTopLeft(
      {std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - place.width())),
       std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - place.height()))});
  window_->move(place.topLeft());
}

void QtForm::Appear(Qt::WindowModality modality) {
  if (!IsPart()) window_->setWindowModality(modality);
  if (window_->focusWidget() == nullptr) FocusFirst(*window_, controls_);
  window_->show();
  if (IsPart()) return;
  window_->raise();
  window_->activateWindow();
}

// Events
// ------------------------------------------------------------------------------------------------

platform::Subscription QtForm::OnLoad(std::function<void()> handler) {
  return load_.Subscribe(std::move(handler));
}

platform::Subscription QtForm::OnResize(std::function<void()> handler) {
  return resize_.Subscribe(std::move(handler));
}

platform::Subscription QtForm::OnCloseQuery(std::function<void(bool& cancel)> handler) {
  return close_query_.Subscribe(std::move(handler));
}

}  // namespace ferrowind::qt
