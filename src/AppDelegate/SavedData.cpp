#include <QFile>
#include <filesystem>

#include "AppDelegate/AppDelegate.h"
#include "Foundation/SystemLog.h"
#include "Platform/Platform.h"
#include "SavedData/ManagedObjectContext.h"
#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"

using namespace Qt::StringLiterals;

// A linker drops the registration of a static library's resources unless it is called.
static void registerModel() {
  Q_INIT_RESOURCE(model);
}

namespace {

// Kept as the first version had it. No other error may use this domain.
const QString kErrorDomain = u"YOUR_ERROR_DOMAIN"_s;
constexpr int kSetUpFailed = 9999;

Error setUpFailed(const QString &reason, std::shared_ptr<const Error> underlying = {}) {
  return {kErrorDomain, kSetUpFailed, u"Failed to initialize the application's saved data"_s,
          reason, std::move(underlying)};
}

Error setUpFailed(const Error &underlying) {
  return setUpFailed(u"There was an error creating or loading the application's saved data."_s,
                     std::make_shared<Error>(underlying));
}

}  // namespace

QString AppDelegate::applicationDocumentsDirectory() const {
  return _platform.folders().support + u"/com.Brinmoor.Keldra"_s;
}

ManagedObjectModel *AppDelegate::managedObjectModel() {
  if (!_managedObjectModel) {
    registerModel();
    _managedObjectModel = std::make_unique<ManagedObjectModel>(u":/Keldra.momd"_s);
  }
  return _managedObjectModel.get();
}

PersistentStoreCoordinator *AppDelegate::persistentStoreCoordinator() {
  if (!_persistentStoreCoordinator) {
    if (const auto error = setUpStore()) _application.presentError(*error);
  }
  return _persistentStoreCoordinator.get();
}

std::optional<Error> AppDelegate::setUpStore() {
  namespace fs = std::filesystem;
  const QString name = applicationDocumentsDirectory();
  const fs::path folder(QFile::encodeName(name).toStdString());
  std::error_code problem;
  const fs::file_type found = fs::status(folder, problem).type();
  if (found == fs::file_type::not_found) {
    fs::create_directories(folder, problem);
  } else if (!problem && found != fs::file_type::directory) {
    return setUpFailed(
        u"Expected a folder to store application data, found a file (%1)."_s.arg(name));
  }
  if (problem) return setUpFailed(posixError(problem.value()));
  auto coordinator = std::make_unique<PersistentStoreCoordinator>(*managedObjectModel());
  if (const auto error = coordinator->addXMLStore(name + u"/OSXCoreDataObjC.storedata"_s))
    return setUpFailed(*error);
  _persistentStoreCoordinator = std::move(coordinator);
  return std::nullopt;
}

ManagedObjectContext *AppDelegate::managedObjectContext() {
  if (!_managedObjectContext) {
    PersistentStoreCoordinator *coordinator = persistentStoreCoordinator();
    if (coordinator == nullptr) return nullptr;
    _managedObjectContext = std::make_unique<ManagedObjectContext>(*coordinator);
  }
  return _managedObjectContext.get();
}

QUndoStack *AppDelegate::windowWillReturnUndoManager(const QWidget * /*window*/) {
  ManagedObjectContext *context = managedObjectContext();
  return context == nullptr ? nullptr : &context->undoManager();
}

void AppDelegate::saveAction() {
  ManagedObjectContext *context = managedObjectContext();
  if (context == nullptr || !context->commitEditing())
    systemLog(u"AppDelegate:saveAction: unable to commit editing before saving"_s);
  if (context == nullptr || !context->hasChanges()) return;
  if (const auto error = context->save()) _application.presentError(*error);
}
