# in: ServiceLoginItem.mm
# says: cannot initialize a parameter of type 'NSError
s/registerAndReturnError:&error/registerAndReturnError:error/
