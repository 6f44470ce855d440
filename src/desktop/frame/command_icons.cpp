#include "desktop/frame/command_icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStringList>
#include <QSvgRenderer>

namespace velk {
namespace {

constexpr const char* kAccent = "#e8902a";
constexpr double kFaint = 0.5;
constexpr double kDisabled = 0.4;  // of the drawing's opacity
constexpr int kMotifDepth = 4;

using Drawings = QHash<QString, QString>;

// Each line is a name and the pieces of its drawing.
Drawings ReadDrawings() {
  Drawings drawings;
  QFile file(QStringLiteral(":/icons/commands.txt"));
  if (!file.open(QIODevice::ReadOnly)) return drawings;
  for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
    const int blank = static_cast<int>(line.indexOf(QLatin1Char(' ')));
    if (blank > 0 && !line.startsWith(QLatin1Char('#'))) {
      drawings.insert(line.left(blank), line.mid(blank).trimmed());
    }
  }
  return drawings;
}

const Drawings& AllDrawings() {
  static const Drawings kRead = ReadDrawings();
  return kRead;
}

QString Expand(const QString& body, int depth);

QString Circle(const QString& numbers) {
  const QStringList parts = numbers.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (parts.size() != 3) return {};
  return QStringLiteral("<circle cx='%1' cy='%2' r='%3'/>").arg(parts[0], parts[1], parts[2]);
}

// "{name}" or "{name} transform".
QString Motif(const QString& text, int depth) {
  const int end = static_cast<int>(text.indexOf(QLatin1Char('}')));
  const QString inner = Expand(AllDrawings().value(text.mid(1, end - 1)), depth + 1);
  return QStringLiteral("<g transform='%1'>%2</g>").arg(text.mid(end + 1).trimmed(), inner);
}

QString Shape(const QString& text, int depth) {
  if (text.startsWith(QLatin1Char('{'))) return Motif(text, depth);
  if (text.startsWith(QLatin1Char('o'))) return Circle(text.mid(1));
  return QStringLiteral("<path d='%1'/>").arg(text);
}

// A piece is a shape behind its marks: '+' accent, '*' filled, '~' faint.
QString Piece(QString text, int depth) {
  QString colour;
  QString style;
  bool filled = false;
  for (; !text.isEmpty(); text.remove(0, 1)) {
    if (text[0] == QLatin1Char('+')) {
      colour = QStringLiteral("%accent%");
    } else if (text[0] == QLatin1Char('*')) {
      filled = true;
    } else if (text[0] == QLatin1Char('~')) {
      style += QStringLiteral(" opacity='%1'").arg(kFaint);
    } else {
      break;
    }
  }
  if (filled) {
    style += QStringLiteral(" stroke='none' fill='%1'").arg(colour.isEmpty() ? "%ink%" : colour);
  } else if (!colour.isEmpty()) {
    style += QStringLiteral(" stroke='%1'").arg(colour);
  }
  return QStringLiteral("<g%1>%2</g>").arg(style, Shape(text, depth));
}

QString Expand(const QString& body, int depth) {
  QString svg;
  if (depth > kMotifDepth) return svg;
  for (const QString& text : body.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    svg += Piece(text.trimmed(), depth);
  }
  return svg;
}

class CommandIconEngine : public QIconEngine {
 public:
  explicit CommandIconEngine(const QString& name) : name_(name) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QSvgRenderer renderer(CommandSvg(name_.toStdString(), coloursFor(mode)));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * kDisabled);
    renderer.render(painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    const IconColours colours = coloursFor(mode);
    const QString key = QStringLiteral("velk:%1:%2x%3:%4%5:%6")
                            .arg(name_, QString::number(size.width()), QString::number(size.height()),
                                 colours.ink.name(QColor::HexArgb), colours.accent.name(QColor::HexArgb),
                                 QString::number(mode == QIcon::Disabled));
    QPixmap drawn;
    if (QPixmapCache::find(key, &drawn)) return drawn;
    drawn = QPixmap(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    painter.end();
    QPixmapCache::insert(key, drawn);
    return drawn;
  }

  QIconEngine* clone() const override { return new CommandIconEngine(name_); }

 private:
  // Disabled drawings are the same, without the accent; styles' own disabled text is too faint for lines.
  static IconColours coloursFor(QIcon::Mode mode) {
    const QColor ink = QGuiApplication::palette().color(QPalette::Active, QPalette::ButtonText);
    return {ink, mode == QIcon::Disabled ? ink : QColor(kAccent)};
  }

  QString name_;
};

}  // namespace

QByteArray CommandSvg(std::string_view name, const IconColours& colours) {
  const QString body = AllDrawings().value(QString::fromUtf8(name.data(), static_cast<int>(name.size())));
  if (body.isEmpty()) return {};
  QString svg = QStringLiteral(
                    "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'>"
                    "<g fill='none' stroke='%ink%' stroke-width='1.8' stroke-linecap='round' "
                    "stroke-linejoin='round'>") +
                Expand(body, 0) + QStringLiteral("</g></svg>");
  svg.replace(QStringLiteral("%ink%"), colours.ink.name());
  svg.replace(QStringLiteral("%accent%"), colours.accent.name());
  return svg.toUtf8();
}

QIcon CommandIcon(std::string_view name) {
  const QString key = QString::fromUtf8(name.data(), static_cast<int>(name.size()));
  return AllDrawings().contains(key) ? QIcon(new CommandIconEngine(key)) : QIcon();
}

}  // namespace velk
