#pragma once

// How a store's objects are written down:
//
//   <store>
//     <object entity="Partition" id="{0e2f0b4c-1111-4c4c-8d8d-121212121212}">
//       <attribute name="note" value="Windows is on this one"/>
//     </object>
//   </store>

#include <variant>

#include "SavedData/ManagedObject.h"

class ManagedObjectModel;

/// Never fails, though `objectsFromXML` may refuse what comes of it: XML knows no control characters.
QByteArray xmlFromObjects(const ManagedObjects &objects);

/// The objects, or in words what is wrong with the text, and where. Whatever is not just as above is
/// refused, so that nothing is lost when it is written again, and so is what would take long to
/// read.
std::variant<ManagedObjects, QString> objectsFromXML(const QByteArray &xml,
                                                     const ManagedObjectModel &model);
