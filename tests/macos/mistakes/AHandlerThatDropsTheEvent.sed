# in: AppKitPointer.mm
# says: non-void block does not return a value
/return event;/d
