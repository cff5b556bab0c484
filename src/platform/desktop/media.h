#pragma once
// Handles on the pictures and sounds of the Resources folder. They name the resource
// ("target2", "claves") and where its file lies; decoding and playing belong to the
// desktop, so the core never links a multimedia library.

#include <QString>

namespace platform {

struct Picture {
  QString name;  // the file's name without its extension
  QString path;
};

struct Sound {
  QString name;
  QString path;
};

}  // namespace platform
