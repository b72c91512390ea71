#include "ferrowind/adapters/qt/forms/qt_toolkit.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QScreen>
#include <QSessionManager>
#include <QTimer>
#include <algorithm>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/controls/popup_place.h"
#include "ferrowind/adapters/qt/forms/file_question.h"
#include "ferrowind/adapters/qt/forms/form_window.h"
#include "ferrowind/adapters/qt/forms/qt_form.h"
#include "ferrowind/adapters/qt/forms/update_hold.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/twips.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

/// Ends the dialogs when the application is asked to quit. It then asks its windows to close, which a dialog
/// that only its own buttons close would refuse, and another one would take for an answer.
class QuitWatch : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == qApp && event->type() == QEvent::Quit) ModalShow::InterruptAll();
    return false;
  }
};

/// Null for an element of another toolkit.
QWidget* WidgetOf(platform::Element& element) {
  if (auto* grid = dynamic_cast<QtGrid*>(&element)) return &grid->Widget();
  auto* holder = dynamic_cast<WidgetElement*>(&element);
  return holder == nullptr ? nullptr : &holder->ElementWidget();
}

/// A dropped form's window lives on until the event loop deletes it.
bool IsGone(const QPointer<QWidget>& widget) {
  if (!widget) return true;
  const auto* window = qobject_cast<FormWindow*>(widget->window());
  return window != nullptr && window->IsRetired();
}

}  // namespace

QtToolkit::QtToolkit(FormLayouts layouts)
    : layouts_(std::move(layouts)), quit_watch_(std::make_unique<QuitWatch>()) {
  NoticeKeys();
  qApp->installEventFilter(quit_watch_.get());
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &context_, [this](QSessionManager& session) {
    if (!CloseForms() && session.allowsInteraction()) session.cancel();
  });
}

QtToolkit::~QtToolkit() = default;

std::shared_ptr<platform::Form> QtToolkit::CreateForm(const platform::FormDesign& design) {
  const auto place = places_.extract(design.name);
  auto form = QtForm::Create(design, layouts_, place.empty() ? nullptr : place.mapped().data());
  std::erase_if(forms_, [](const auto& known) { return known.expired(); });
  forms_.push_back(form);
  return form;
}

void QtToolkit::PlaceForm(const std::string& form_name, QWidget& place) { places_[form_name] = &place; }

platform::ScreenSize QtToolkit::Screen() const {
  const QSize size = QGuiApplication::primaryScreen()->size();
  return {TwipsX(size.width()), TwipsY(size.height())};
}

float QtToolkit::TwipsPerPixelX() const { return qt::TwipsPerPixelX(); }

bool QtToolkit::LockUpdates(platform::Element& element) {
  QWidget* widget = WidgetOf(element);
  if (UpdatesAreLocked() || widget == nullptr) return false;
  locked_ = widget;
  hold_ = std::make_unique<UpdateHold>(*widget->window());
  return true;
}

void QtToolkit::UnlockUpdates() {
  hold_.reset();
  locked_ = nullptr;
}

bool QtToolkit::UpdatesAreLocked() const { return !IsGone(locked_); }

platform::Subscription QtToolkit::After(std::int32_t milliseconds, std::function<void()> handler) {
  if (milliseconds < 0) throw platform::InvalidArgument();
  auto* timer = new QTimer(&context_);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, handler = std::move(handler)] {
    timer->deleteLater();
    RunGuarded("toolkit", handler);
  });
  timer->start(milliseconds);
  return platform::Subscription([guarded = QPointer<QTimer>(timer)] {
    if (!guarded) return;
    guarded->stop();
    guarded->deleteLater();
  });
}

std::optional<std::string> QtToolkit::ChooseFileToSave(const std::string& title,
                                                       const std::string& suggested_name,
                                                       const std::vector<platform::FileKind>& kinds) {
  const auto path = AskForFileToSave(ToQt(title), ToQt(suggested_name), kinds, last_folder_);
  return Kept(path);
}

std::optional<std::string> QtToolkit::ChooseFileToOpen(const std::string& title, const std::string& caption,
                                                       const std::vector<std::string>& suffixes) {
  return Kept(AskForFileToOpen(ToQt(title), ToQt(caption), suffixes, last_folder_));
}

std::optional<std::string> QtToolkit::Kept(const std::optional<QString>& chosen) {
  if (!chosen) return std::nullopt;
  last_folder_ = QFileInfo(*chosen).absolutePath();
  return FromQt(*chosen);
}

void QtToolkit::SetClipboardText(const std::string& text) { QApplication::clipboard()->setText(ToQt(text)); }

void QtToolkit::ProcessPendingEvents() { QCoreApplication::processEvents(); }

void QtToolkit::Beep() { QApplication::beep(); }

bool QtToolkit::CloseForms() {
  std::vector<std::shared_ptr<QtForm>> forms;
  for (const auto& known : forms_) {
    if (auto form = known.lock()) forms.push_back(std::move(form));
  }
  if (std::any_of(forms.begin(), forms.end(), [](const auto& form) { return form->AwaitsAnswer(); })) {
    return false;
  }
  return std::all_of(forms.rbegin(), forms.rend(),
                     [](const auto& form) { return form->IsPart() || !form->IsShown() || form->Unload(); });
}

}  // namespace ferrowind::qt
