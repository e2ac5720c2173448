# in: ServiceLoginItem.mm
# says: enumeration value 'SMAppServiceStatusNotFound' not handled
/case SMAppServiceStatusNotFound/,/return/d
