#pragma once

#include <QString>

#include <brivane/frame/Texts.h>

namespace brivane::qt {

/// The texts as the application's translators have them: Dutch, where none translates the context "Brivane". Each is
/// translated when it is asked for, on any thread.
[[nodiscard]] const frame::Texts& TranslatedTexts();
/// One of them.
[[nodiscard]] QString Translated(frame::TextId text);

}  // namespace brivane::qt
