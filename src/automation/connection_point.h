#pragma once
// The connection point of a class with one event interface: hosts advise, unadvise and enumerate as they
// like.

#include <windows.h>

#include <ocidl.h>
#include <wrl/client.h>

#include <vector>

#include "automation/typelib/description.h"

namespace qm::automation {

// A member of the object that has the events; shares its lifetime, and the container its identity.
class ConnectionPoints final : public IConnectionPointContainer {
 public:
  ConnectionPoints(IUnknown& owner, const Interface& events) : owner_(owner), point_(*this, events) {}
  ConnectionPoints(const ConnectionPoints&) = delete;
  ConnectionPoints& operator=(const ConnectionPoints&) = delete;
  ~ConnectionPoints() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    return owner_.QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return owner_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return owner_.Release(); }
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept override;

 private:
  class Point final : public IConnectionPoint {
   public:
    Point(ConnectionPoints& container, const Interface& events) : container_(container), events_(events) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return container_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return container_.Release(); }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) noexcept override;

    [[nodiscard]] const GUID& Id() const noexcept { return events_.id; }

   private:
    struct Connection {
      Microsoft::WRL::ComPtr<IUnknown> sink;
      DWORD cookie = 0;
    };

    ConnectionPoints& container_;
    const Interface& events_;
    std::vector<Connection> connections_;
    DWORD lastCookie_ = 0;
  };

  IUnknown& owner_;
  Point point_;
};

}  // namespace qm::automation
