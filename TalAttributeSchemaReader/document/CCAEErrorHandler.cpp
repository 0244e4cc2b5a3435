#include "TalAttributeSchemaReader/document/CCAEErrorHandler.h"

CCAEErrorHandler::CCAEErrorHandler() : m_failed(false) {}

CCAEErrorHandler::~CCAEErrorHandler() = default;

bool CCAEErrorHandler::handleError(const xercesc::DOMError&)
{
    m_failed = true;
    return true;
}
