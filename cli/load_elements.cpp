#include "cli/load_elements.h"

#include "cli/message_collector.h"

namespace orvane {

bool LoadElements(Session& session, ElementsDatabase& elements) {
  MessageCollector messages;
  const bool loaded = elements.Load(session.dataFolder + kElementsFile, messages) == 1;
  FailWithMessages(session, messages);
  return loaded;
}

}  // namespace orvane
