#include <QFile>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <tuple>

#include "platform/picture_impl.h"
#include "platform/stop.h"
#include "platform/surface_impl.h"

// Outside any namespace, as the macro demands; a static library's resources are not found without
// it.
static void RegisterArtwork() {
  Q_INIT_RESOURCE(art);
}

namespace platform {
namespace {

constexpr qsizetype kLargestCache = 8 << 20;  // bytes

QSvgRenderer& Renderer(const std::string& name) {
  // Never destroyed, as the toolkit goes before the statics do.
  static auto& renderers = *new std::map<std::string, std::unique_ptr<QSvgRenderer>>;
  std::unique_ptr<QSvgRenderer>& renderer = renderers[name];
  if (renderer) return *renderer;
  RegisterArtwork();
  const QString file = ":/art/" + QString::fromStdString(name) + ".svg";
  if (!QFile::exists(file)) Stop("DrawPicture: there is no picture \"" + name + "\"");
  renderer = std::make_unique<QSvgRenderer>(file);
  if (!renderer->isValid()) Stop("DrawPicture: the picture \"" + name + "\" cannot be read");
  return *renderer;
}

QRect RectOf(const PixelRect& rect) {
  return {rect.left, rect.top, rect.width, rect.height};
}

}  // namespace

QSize PictureSize(const std::string& name) {
  return Renderer(name).defaultSize();
}

PixelPoint PictureExtent(const std::string& name) {
  const QSize size = PictureSize(name);
  return {size.width(), size.height()};
}

QImage PictureImage(const std::string& name, const QSize& size) {
  using Key = std::tuple<std::string, int, int>;
  static auto& cache = *new std::map<Key, QImage>;
  static qsizetype cached = 0;
  const Key key(name, size.width(), size.height());
  const auto found = cache.find(key);
  if (found != cache.end()) return found->second;
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  Renderer(name).render(&painter, QRectF(QPointF(0, 0), size));
  painter.end();
  if (cached + image.sizeInBytes() > kLargestCache) {
    cache.clear();
    cached = 0;
  }
  cached += image.sizeInBytes();
  return cache.emplace(key, image).first->second;
}

void Surface::DrawPicture(const std::string& name, int x, int y) {
  const QSize size = PictureSize(name);
  DrawPicture(name, {x, y, size.width(), size.height()});
}

void Surface::DrawPicture(const std::string& name, const PixelRect& rect) {
  const QRect target = RectOf(rect);
  if (target.isEmpty() || !impl_->paints) return;
  QPainter painter(&impl_->image);
  painter.drawImage(target.topLeft(), PictureImage(name, target.size()));
  impl_->Touch(target);
}

void Surface::DrawPicturePart(const std::string& name, int x, int y, const PixelRect& part) {
  if (!impl_->paints) return;
  const QImage picture = PictureImage(name, PictureSize(name));
  // What lies outside the picture is left alone.
  const QRect source = RectOf(part) & picture.rect();
  const QPoint target(x + source.x() - part.left, y + source.y() - part.top);
  if (source.isEmpty()) return;
  QPainter painter(&impl_->image);
  painter.drawImage(target, picture, source);
  impl_->Touch(QRect(target, source.size()));
}

}  // namespace platform
