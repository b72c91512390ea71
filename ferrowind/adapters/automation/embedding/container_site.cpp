#include "ferrowind/adapters/automation/embedding/container_site.h"

#include <oaidl.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/owned_variant.h"

namespace ferrowind::automation {

void ContainerSite::AskMode() {
  const ComPointer<IOleClientSite> client = client_;
  ComPointer<IDispatch> ambients;
  if (!client || FAILED(client.As(ambients))) return;
  DISPPARAMS none{};
  OwnedVariant is_user_mode;
  if (FAILED(ambients->Invoke(DISPID_AMBIENT_USERMODE, GUID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                              &none, is_user_mode.Address(), nullptr, nullptr))) {
    return;
  }
  if (is_user_mode.Type() == VT_BOOL) SetDesigning(V_BOOL(&is_user_mode.Get()) == VARIANT_FALSE);
}

}  // namespace ferrowind::automation
