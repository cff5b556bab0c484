#pragma once
// Dictionary: keys and values of any kind, kept in the order they were first added, so
// that Keys() and Key(i) walk it the same way every time. Keys of text compare as the
// framework's dictionary does: exactly, case included.

#include <QVariant>
#include <QVariantList>
#include <vector>

#include "platform/exceptions.h"

namespace platform {

class Dictionary {
 public:
  int Count() const { return static_cast<int>(entries_.size()); }
  bool HasKey(const QVariant& key) const { return indexOf(key) >= 0; }

  // The value of a key; a key that is not there is a KeyNotFoundException.
  QVariant Value(const QVariant& key) const {
    const int i = indexOf(key);
    if (i < 0) throw KeyNotFoundException(QStringLiteral("no key ") + key.toString());
    return entries_[static_cast<size_t>(i)].second;
  }
  void setValue(const QVariant& key, const QVariant& value) {
    const int i = indexOf(key);
    if (i >= 0) {
      entries_[static_cast<size_t>(i)].second = value;
    } else {
      entries_.emplace_back(key, value);
    }
  }
  void Remove(const QVariant& key) {
    const int i = indexOf(key);
    if (i < 0) throw KeyNotFoundException(QStringLiteral("no key ") + key.toString());
    entries_.erase(entries_.begin() + i);
  }
  void Clear() { entries_.clear(); }

  // The key at position i, from 0; OutOfBoundsException outside.
  QVariant Key(int i) const {
    if (i < 0 || i >= Count()) throw OutOfBoundsException(QStringLiteral("Dictionary.Key"));
    return entries_[static_cast<size_t>(i)].first;
  }
  QVariantList Keys() const {
    QVariantList keys;
    for (const auto& e : entries_) keys.push_back(e.first);
    return keys;
  }
  QVariantList Values() const {
    QVariantList values;
    for (const auto& e : entries_) values.push_back(e.second);
    return values;
  }

 private:
  int indexOf(const QVariant& key) const {
    for (size_t i = 0; i < entries_.size(); ++i) {
      if (entries_[i].first == key) return static_cast<int>(i);
    }
    return -1;
  }

  std::vector<std::pair<QVariant, QVariant>> entries_;
};

}  // namespace platform
