#include "ferrowind/adapters/qt/controls/qt_animation.h"

#include <QFileInfo>
#include <QImageReader>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::Failure;
namespace failure_number = platform::failure_number;

namespace {

QString ExistingFile(const QString& path) {
  if (QFileInfo::exists(path)) return path;
  QString slashed = path;
  return slashed.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool IsAnimatedImage(const QString& file) {
  QImageReader reader(file);
  reader.setDecideFormatFromContent(true);
  return reader.canRead() && reader.supportsAnimation() && reader.imageCount() > 1;
}

}  // namespace

QtAnimation::QtAnimation(QLabel& label) : QtControl(label), label_(label) {
  label_.setAlignment(Qt::AlignCenter);
}

QtAnimation::~QtAnimation() = default;

void QtAnimation::Open(const std::string& path) {
  const QString file = ExistingFile(ToQt(path));
  if (!IsAnimatedImage(file)) {
    throw Failure(failure_number::kInvalidArgument, "There is no animated image in the file " + path);
  }
  Stop();
  movie_ = std::make_unique<QMovie>(file);
  movie_->setCacheMode(QMovie::CacheAll);
  QObject::connect(movie_.get(), &QMovie::frameChanged, Context(), [this] { ShowFrame(); });
  // An image that is made to play a few times only plays over and over all the same.
  QObject::connect(movie_.get(), &QMovie::finished, movie_.get(), &QMovie::start, Qt::QueuedConnection);
}

void QtAnimation::Play() {
  if (!movie_) throw Failure(failure_number::kObjectNotSet, "The animation " + Name() + " has no image open");
  if (movie_->state() == QMovie::Running) return;
  movie_->start();
  // What is waited for often runs in this very handler, with no event handled before it ends.
  label_.repaint();
}

void QtAnimation::Stop() {
  if (movie_) movie_->stop();
  label_.clear();
}

void QtAnimation::ShowFrame() {
  if (movie_->state() == QMovie::NotRunning) return;
  const qreal ratio = label_.devicePixelRatioF();
  QPixmap frame =
      movie_->currentPixmap().scaled(label_.size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  frame.setDevicePixelRatio(ratio);
  label_.setPixmap(frame);
}

}  // namespace ferrowind::qt
