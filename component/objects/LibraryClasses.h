#pragma once

#include "component/idl/Windows.h"

#include <span>

namespace brivane::component {

class Identity;

/// What a class is to containers.
enum class Usage { Control, Object };

/// One of the library's classes that hosts create.
struct LibraryClass {
  const CLSID& id;
  const wchar_t* name;         ///< "VrijeKolom"; its ProgID is BrivaneVrijeKolom.VrijeKolom
  const wchar_t* description;  ///< as a person reads it
  Usage usage;
  int bitmap;  ///< resource number of a control's picture in a tool box
  Identity* (*make)(IUnknown* outer);
};

/// Version of every class and of the type library.
inline constexpr int kMajor = 1;
inline constexpr int kMinor = 0;

[[nodiscard]] std::span<const LibraryClass> LibraryClasses();
/// The class with that identity, or nothing.
[[nodiscard]] const LibraryClass* FindClass(const CLSID& id);

}  // namespace brivane::component
