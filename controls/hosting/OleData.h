#pragma once

#include "controls/contract/DataObject.h"
#include "drawing/ComReference.h"

#include <windows.h>

#include <objidl.h>

#include <memory>

namespace orvanta {

// Between a DataObject and the platform's own: all formats travel in global memory. Text goes out in both text formats,
// whichever of them was set.

// The platform's view of the data, which it shares.
ComReference<IDataObject> OfferData(std::shared_ptr<DataObject> data);

// What came from a drag. Contents are fetched when they are asked for, and only while source stands.
void TakeData(DataObject& data, IDataObject* source);

} // namespace orvanta
