#include "platform/files/text_streams.h"

#include <QFile>
#include <QSaveFile>

#include "platform/exceptions.h"
#include "platform/files/folder_item.h"

namespace platform {

// ---- input -------------------------------------------------------------------------

TextInputStream::TextInputStream(QString text) : text_(std::move(text)) {}

QString TextInputStream::ReadAll() {
  QString rest = text_.mid(pos_);
  pos_ = text_.size();
  return rest;
}

QString TextInputStream::ReadLine() {
  const qsizetype size = text_.size();
  qsizetype end = pos_;
  while (end < size && text_[end] != u'\n' && text_[end] != u'\r') ++end;
  QString line = text_.mid(pos_, end - pos_);
  if (end < size) {
    const bool crlf = text_[end] == u'\r' && end + 1 < size && text_[end + 1] == u'\n';
    end += crlf ? 2 : 1;
  }
  pos_ = end;
  return line;
}

bool TextInputStream::Eof() const { return pos_ >= text_.size(); }

void TextInputStream::Close() {
  text_.clear();
  pos_ = 0;
}

// ---- output ------------------------------------------------------------------------

TextOutputStream::TextOutputStream(const QString& path, Mode mode) : mode_(mode), path_(path) {
  if (mode == Mode::Rewrite) {
    auto save = std::make_unique<QSaveFile>(path);
    if (!save->open(QIODevice::WriteOnly)) {
      throw IOException(QStringLiteral("cannot write ") + path + QStringLiteral(": ") + save->errorString());
    }
    file_ = std::move(save);
  } else {
    auto plain = std::make_unique<QFile>(path);
    if (!plain->open(QIODevice::WriteOnly | QIODevice::Append)) {
      throw IOException(QStringLiteral("cannot append to ") + path + QStringLiteral(": ") + plain->errorString());
    }
    file_ = std::move(plain);
  }
}

TextOutputStream::~TextOutputStream() {
  if (!file_) return;
  if (mode_ == Mode::Rewrite) {
    static_cast<QSaveFile*>(file_.get())->cancelWriting();
  } else {
    file_->close();
  }
}

TextOutputStream::TextOutputStream(TextOutputStream&&) noexcept = default;
TextOutputStream& TextOutputStream::operator=(TextOutputStream&&) noexcept = default;

TextOutputStream TextOutputStream::Create(const FolderItem& item) { return item.CreateTextFile(); }

TextOutputStream TextOutputStream::Append(const FolderItem& item) { return item.AppendToTextFile(); }

bool TextOutputStream::isOpen() const { return file_ != nullptr; }

void TextOutputStream::Write(const QString& text) {
  if (!file_) throw IOException(QStringLiteral("write to a closed stream: ") + path_);
  const QByteArray bytes = text.toUtf8();
  if (file_->write(bytes) != bytes.size()) {
    throw IOException(QStringLiteral("cannot write ") + path_ + QStringLiteral(": ") + file_->errorString());
  }
}

void TextOutputStream::WriteLine(const QString& text) { Write(text + QLatin1Char('\n')); }

void TextOutputStream::Close() {
  if (!file_) return;
  std::unique_ptr<QFileDevice> file = std::move(file_);
  if (mode_ == Mode::Rewrite) {
    auto* save = static_cast<QSaveFile*>(file.get());
    if (!save->commit()) {
      throw IOException(QStringLiteral("cannot replace ") + path_ + QStringLiteral(": ") + save->errorString());
    }
    return;
  }
  if (!file->flush()) {
    throw IOException(QStringLiteral("cannot write ") + path_ + QStringLiteral(": ") + file->errorString());
  }
  file->close();
}

void writeWholeFileAtomically(const FolderItem& item, const QString& text) {
  TextOutputStream out = item.CreateTextFile();
  out.Write(text);
  out.Close();
}

}  // namespace platform
