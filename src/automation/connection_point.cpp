#include "automation/connection_point.h"

#include <olectl.h>

#include <algorithm>
#include <new>

#include "automation/enumerator.h"

namespace qm::automation {

namespace {

using Microsoft::WRL::ComPtr;

struct PointTraits {
  using Interface = IEnumConnectionPoints;
  using Item = IConnectionPoint*;
  using Held = ComPtr<IConnectionPoint>;
  static constexpr const IID& kId = IID_IEnumConnectionPoints;
  static void Give(const Held& held, Item& item) { held.CopyTo(&item); }
};

struct ConnectionTraits {
  using Interface = IEnumConnections;
  using Item = CONNECTDATA;
  struct Held {
    ComPtr<IUnknown> sink;
    DWORD cookie;
  };
  static constexpr const IID& kId = IID_IEnumConnections;
  static void Give(const Held& held, Item& item) {
    held.sink.CopyTo(&item.pUnk);
    item.dwCookie = held.cookie;
  }
};

}  // namespace

HRESULT ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  if (!points) return E_POINTER;
  *points = nullptr;
  try {
    *points = new Enumerator<PointTraits>({ComPtr<IConnectionPoint>(&point_)});
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
}

HRESULT ConnectionPoints::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
  if (!point) return E_POINTER;
  *point = nullptr;
  if (!IsEqualGUID(id, point_.Id())) return CONNECT_E_NOCONNECTION;
  *point = &point_;
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoints::Point::QueryInterface(REFIID id, void** object) noexcept {
  if (!object) return E_POINTER;
  const bool known = IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, IID_IConnectionPoint);
  *object = known ? static_cast<IConnectionPoint*>(this) : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoints::Point::GetConnectionInterface(IID* id) noexcept {
  if (!id) return E_POINTER;
  *id = events_.id;
  return S_OK;
}

HRESULT ConnectionPoints::Point::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept {
  if (!container) return E_POINTER;
  *container = &container_;
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoints::Point::Advise(IUnknown* sink, DWORD* cookie) noexcept {
  if (!sink || !cookie) return E_POINTER;
  *cookie = 0;
  ComPtr<IUnknown> asked;
  if (FAILED(sink->QueryInterface(events_.id, reinterpret_cast<void**>(asked.GetAddressOf()))) &&
      FAILED(sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(asked.GetAddressOf())))) {
    return CONNECT_E_CANNOTCONNECT;
  }
  try {
    connections_.push_back({asked, lastCookie_ + 1});
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  *cookie = ++lastCookie_;
  return S_OK;
}

HRESULT ConnectionPoints::Point::Unadvise(DWORD cookie) noexcept {
  const auto found = std::find_if(connections_.begin(), connections_.end(),
                                  [&](const Connection& connection) { return connection.cookie == cookie; });
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  const Connection released = std::move(*found);  // the sink may call back while it goes
  connections_.erase(found);
  return S_OK;
}

HRESULT ConnectionPoints::Point::EnumConnections(IEnumConnections** connections) noexcept {
  if (!connections) return E_POINTER;
  *connections = nullptr;
  try {
    std::vector<ConnectionTraits::Held> held;
    for (const Connection& connection : connections_) held.push_back({connection.sink, connection.cookie});
    *connections = new Enumerator<ConnectionTraits>(std::move(held));
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace qm::automation
