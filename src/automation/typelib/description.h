#pragma once
// How a library of automation classes describes itself: one table of its classes, interfaces and members. The
// type libraries, the C++ headers for hosts, the side-by-side manifests, the registration and the late-bound
// calls are all made from it.
// The order of members is the order of the vtable, after the seven slots of IUnknown and IDispatch.
// Hosts are compiled against all of it: members are never renamed, renumbered or moved.

#include <guiddef.h>

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace qm::automation {

inline constexpr std::uint16_t kMajorVersion = 1;
inline constexpr std::uint16_t kMinorVersion = 0;
inline constexpr std::uint32_t kLibraryLcid = 0x0409;
inline constexpr int kFirstSlot = 7;

enum class Type : std::uint8_t {
  None,
  Text,          // BSTR
  Integer,       // 16 bits
  Long,          // 32 bits
  Boolean,       // VARIANT_BOOL
  Variant,       // VARIANT
  Dispatch,      // IDispatch*
  Object,        // the interface named beside it
  TextArray,     // SAFEARRAY of BSTR
  IntegerArray,  // SAFEARRAY of 16-bit integers
};

enum class Kind : std::uint8_t {
  Field,   // get and let, and set for a Variant: two or three slots
  Method,  // one slot, as have the next two
  Let,
  Get,
};

enum class Access : std::uint8_t { Call, Get, Let, Set };

struct Interface;
struct Library;

struct Parameter {
  std::u16string_view name;
  Type type = Type::None;
  const Interface* object = nullptr;  // of Type::Object
  bool optional = false;              // the default is an empty text
};

inline constexpr std::size_t kMostParameters = 4;

struct Member {
  std::u16string_view name;
  std::int32_t dispid = 0;
  Kind kind = Kind::Method;
  Type type = Type::None;  // of the field or property, or what the method returns
  std::array<Parameter, kMostParameters> parameters{};
  const Interface* object = nullptr;  // of Type::Object

  [[nodiscard]] constexpr int SlotCount() const {
    if (kind != Kind::Field) return 1;
    return type == Type::Variant ? 3 : 2;
  }
  [[nodiscard]] constexpr std::size_t ParameterCount() const {
    std::size_t count = 0;
    while (count < parameters.size() && parameters[count].type != Type::None) ++count;
    return count;
  }
};

struct Interface {
  std::u16string_view name;
  GUID id{};
  std::span<const Member> members;
  const Library* library = nullptr;
};

struct Class {
  std::u16string_view name;  // without the library's name in front
  GUID id{};
  const Interface* face = nullptr;
  const Interface* events = nullptr;  // dispatch only
};

struct Library {
  std::u16string_view name;
  GUID id{};
  std::span<const Class> classes;

  // The class whose default interface that is; it must be one of this library's.
  [[nodiscard]] const Class& ClassOf(const Interface& defaultFace) const;
};

// One function of the vtable.
struct Function {
  const Member* member = nullptr;
  Access access = Access::Call;
  int slot = 0;
};

// Short ways to write a table down.
consteval Member Field(std::u16string_view name, std::uint32_t dispid, Type type) {
  return {name, static_cast<std::int32_t>(dispid), Kind::Field, type, {}, nullptr};
}
consteval Member Let(std::u16string_view name, std::uint32_t dispid, Type type) {
  return {name, static_cast<std::int32_t>(dispid), Kind::Let, type, {}, nullptr};
}
consteval Member Get(std::u16string_view name, std::uint32_t dispid, Type type) {
  return {name, static_cast<std::int32_t>(dispid), Kind::Get, type, {}, nullptr};
}
consteval Member Method(std::u16string_view name, std::uint32_t dispid,
                        std::array<Parameter, kMostParameters> parameters = {}, Type result = Type::None) {
  return {name, static_cast<std::int32_t>(dispid), Kind::Method, result, parameters, nullptr};
}
// A method that returns an object.
consteval Member Method(std::u16string_view name, std::uint32_t dispid,
                        std::array<Parameter, kMostParameters> parameters, const Interface& result) {
  return {name, static_cast<std::int32_t>(dispid), Kind::Method, Type::Object, parameters, &result};
}
consteval Parameter ByRef(std::u16string_view name, Type type) { return {name, type, nullptr, false}; }
consteval Parameter ByRef(std::u16string_view name, const Interface& object) {
  return {name, Type::Object, &object, false};
}
consteval Parameter OptionalByRef(std::u16string_view name, Type type) { return {name, type, nullptr, true}; }

// Calls visit(Function) for every function of the vtable, in order.
template <class Visitor>
void ForEachFunction(const Interface& face, Visitor&& visit) {
  int slot = kFirstSlot;
  for (const Member& member : face.members) {
    switch (member.kind) {
      case Kind::Method:
        visit(Function{&member, Access::Call, slot});
        break;
      case Kind::Let:
        visit(Function{&member, Access::Let, slot});
        break;
      case Kind::Get:
        visit(Function{&member, Access::Get, slot});
        break;
      case Kind::Field:
        visit(Function{&member, Access::Get, slot});
        visit(Function{&member, Access::Let, slot + 1});
        if (member.SlotCount() == 3) visit(Function{&member, Access::Set, slot + 2});
        break;
    }
    slot += member.SlotCount();
  }
}

}  // namespace qm::automation
