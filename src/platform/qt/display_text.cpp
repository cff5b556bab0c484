#include "platform/qt/display_text.h"

#include <algorithm>

namespace platform::qt {

QString displayText(const QString& text) {
  if (!text.contains(u'\r')) return text;
  QString shown = text;
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(u'\r', u'\n');
  return shown;
}

std::vector<int> displayToModel(const QString& text) {
  std::vector<int> map;
  map.reserve(static_cast<size_t>(text.size()) + 1);
  const int size = static_cast<int>(text.size());
  for (int i = 0; i < size; ++i) {
    map.push_back(i);
    if (text.at(i) == u'\r' && i + 1 < size && text.at(i + 1) == u'\n') ++i;
  }
  map.push_back(size);
  return map;
}

ModelEdit applyDisplayEdit(const QString& model, const QString& edited, int editedCursor) {
  const QString shown = displayText(model);
  const int oldSize = static_cast<int>(shown.size());
  const int newSize = static_cast<int>(edited.size());
  editedCursor = std::clamp(editedCursor, 0, newSize);
  if (shown == model) return {edited, editedCursor};

  // The edit is what lies between the longest common head and tail.
  int head = 0;
  while (head < oldSize && head < newSize && shown.at(head) == edited.at(head)) ++head;
  int tail = 0;
  while (tail < oldSize - head && tail < newSize - head &&
         shown.at(oldSize - 1 - tail) == edited.at(newSize - 1 - tail)) {
    ++tail;
  }
  const std::vector<int> map = displayToModel(model);
  const int from = map[static_cast<size_t>(head)];
  const int to = map[static_cast<size_t>(oldSize - tail)];
  const QString inserted = edited.mid(head, newSize - tail - head);

  ModelEdit result;
  result.text = model.left(from) + inserted + model.mid(to);
  const int insertedEnd = head + static_cast<int>(inserted.size());
  if (editedCursor <= head) {
    result.cursor = map[static_cast<size_t>(editedCursor)];
  } else if (editedCursor <= insertedEnd) {
    result.cursor = from + (editedCursor - head);
  } else {
    const int oldPosition = editedCursor - insertedEnd + (oldSize - tail);
    result.cursor =
        map[static_cast<size_t>(oldPosition)] - to + from + static_cast<int>(inserted.size());
  }
  return result;
}

}  // namespace platform::qt
